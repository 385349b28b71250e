// The user's choices in the user's branch of the registry.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/settings_backend.h"
#include "platform/windows/registry_key.h"

namespace zelvane::platform {

//     HKEY_CURRENT_USER\Software\Zelvane\Settings
//         Format = 1                                  REG_DWORD
//         ^Zelvane\^Schedule
//             ^Run^On = "7"                           application, section, key, text
//         ^C:%5c^Zelvane\^Settings
//             ^Index0 = "1"
//
// The names are drawn in stored_name.h; a long one goes on in a key below its first part. A text is
// a string (REG_SZ), or its bytes (REG_BINARY) where it has a zero byte or is no UTF-8. Values and
// keys of other names or types are kept and never found.
//
// The system keeps its registry whole by itself. What `check` can meet is another format and rights
// that somebody changed.
class WindowsSettings : public SettingsBackend {
 public:
  explicit WindowsSettings(const std::string& branch = R"(Software\Zelvane\Settings)");

  std::optional<std::string> find(const std::string& application, const std::string& section,
                                  const std::string& key) const override;
  void save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& text) override;
  std::optional<std::string> check() override;

 private:
  std::string shownPath(const std::wstring& branch) const;
  std::wstring freeName() const;
  std::string setAside() const;

  std::wstring branch_;  // below HKEY_CURRENT_USER
};

}  // namespace zelvane::platform
