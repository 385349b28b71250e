// Who Zelvane is on Linux and where it was started from.
#pragma once

#include <string>

#include "platform/identity.h"
#include "platform/linux/environment.h"
#include "platform/shared/product.h"

namespace zelvane::platform {

class LinuxIdentity : public Identity {
 public:
  // Looks now where the executable is: a program that is updated while it runs keeps its answer.
  explicit LinuxIdentity(const Environment& environment);

  const VersionRecord& version() const override { return version_; }
  std::string programFolder() const override { return programFolder_; }
  std::string executableName() const override { return executableName_; }
  std::string dataFolder() const override { return dataFolder_; }
  char separator() const override { return '/'; }

 private:
  VersionRecord version_ = product();
  std::string programFolder_;
  std::string executableName_;
  std::string dataFolder_;
};

}  // namespace zelvane::platform
