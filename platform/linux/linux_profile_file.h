// "win.ini" beside the settings: a plain initialisation file that its user may edit.
#pragma once

#include "platform/linux/environment.h"
#include "platform/linux/private_file.h"
#include "platform/profile_file.h"

namespace zelvane::platform {

class LinuxProfileFile : public ProfileFile {
 public:
  explicit LinuxProfileFile(const Environment& environment);

  std::optional<std::string> find(const std::string& section,
                                  const std::string& key) const override;
  bool write(const std::string& section, const std::string& key, const std::string& text) override;

 private:
  PrivateFile file_;
};

}  // namespace zelvane::platform
