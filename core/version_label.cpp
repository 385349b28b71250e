#include "core/version_label.h"

#include "platform/identity.h"

namespace zelvane::core {

std::string versionLabel(const platform::VersionRecord& version) {
  return version.productName + " v" + std::to_string(version.major) + "." +
         std::to_string(version.minor);
}

}  // namespace zelvane::core
