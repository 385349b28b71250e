// Who Zelvane is on Windows and where it was started from.
#pragma once

#include <optional>
#include <string>

#include <windows.h>

#include "platform/identity.h"

namespace zelvane::platform {

// The program is installed for its user alone, so its own folder is also that of the data.
class WindowsIdentity : public Identity {
 public:
  // Looks now where the executable is. Throws where the system does not tell.
  WindowsIdentity();

  const VersionRecord& version() const override { return version_; }
  std::string programFolder() const override { return programFolder_; }
  std::string executableName() const override { return executableName_; }
  std::string dataFolder() const override { return programFolder_; }
  char separator() const override { return '\\'; }

 private:
  VersionRecord version_;
  std::string programFolder_;
  std::string executableName_;
};

// What a module's version resource says of it: names, company, legal text and number, and its
// comments, which are the maker's address. The title, and any text that is missing, is the
// product's. Nothing where the module has no such resource.
std::optional<VersionRecord> versionRecordOf(HMODULE module);

// A path in its folder, without a closing "\" unless it is the root of a drive, and the file's name
// without ".exe".
struct ProgramPlace {
  std::string folder;
  std::string name;
};
ProgramPlace programPlace(std::string path);

}  // namespace zelvane::platform
