// The user's choices in one private file, "settings.json".
#pragma once

#include "platform/linux/environment.h"
#include "platform/linux/private_json_file.h"
#include "platform/settings_backend.h"

namespace zelvane::platform {

//     $XDG_CONFIG_HOME/zelvane/settings.json
//     {
//       "format": 1,
//       "applications": {
//         "Zelvane": { "Schedule": { "RunOn": "7" } },      application, section, key, text
//         "/opt/zelvane": { "Settings": { "Index0": "1" } }
//       }
//     }
//
// What is not of this form, but leaves the form whole, is kept and never found: a section that is
// no object, a text that is a number. Names and texts are kept as any bytes (see json_text.h).
class LinuxSettings : public SettingsBackend {
 public:
  explicit LinuxSettings(const Environment& environment);

  std::optional<std::string> find(const std::string& application, const std::string& section,
                                  const std::string& key) const override;
  void save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& text) override;
  std::optional<std::string> check() override;

 private:
  PrivateJsonFile file_;
};

}  // namespace zelvane::platform
