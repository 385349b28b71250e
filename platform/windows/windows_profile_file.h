// "WIN.INI" in the system's folder.
#pragma once

#include <optional>
#include <string>

#include "platform/profile_file.h"

namespace zelvane::platform {

// An ordinary user may not write to the system's folder. But Windows keeps most sections of
// WIN.INI, "Extensions" among them, in the user's branch of the registry, and its own functions
// read and write them there: those are left to it, a whole text or none as the registry keeps it.
// All others are lines of the file, which is UTF-8, or UTF-16 where it begins with the mark of
// that, and is replaced as a whole.
class WindowsProfileFile : public ProfileFile {
 public:
  // The system's. Throws where the system does not tell its folder.
  WindowsProfileFile();

  // Another file, of which the system keeps nothing elsewhere. For tests.
  explicit WindowsProfileFile(const std::string& path);

  std::optional<std::string> find(const std::string& section,
                                  const std::string& key) const override;
  bool write(const std::string& section, const std::string& key, const std::string& text) override;

 private:
  bool isTheSystems(const std::string& section) const;

  std::string path_;
  std::wstring systemsName_;  // empty for another file
};

}  // namespace zelvane::platform
