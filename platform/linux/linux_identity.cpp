#include "platform/linux/linux_identity.h"

#include <filesystem>
#include <system_error>

#include "platform/error.h"

namespace zelvane::platform {

LinuxIdentity::LinuxIdentity(const Environment& environment)
    : dataFolder_(environment.dataHome + "/zelvane") {
  std::error_code failure;
  const auto executable = std::filesystem::read_symlink("/proc/self/exe", failure);
  if (failure) {
    throw Error(ErrorNumber::internal, "The program's own path is unknown: /proc is missing.");
  }
  programFolder_ = executable.parent_path().string();
  executableName_ = executable.filename().string();
}

}  // namespace zelvane::platform
