#include "platform/linux/system_error.h"

#include <cerrno>
#include <system_error>

namespace zelvane::platform {

Error errorFor(int systemNumber) {
  switch (systemNumber) {
    case ENOENT:
      return Error(ErrorNumber::fileNotFound);
    case ENOTDIR:
    case ENAMETOOLONG:
      return Error(ErrorNumber::pathNotFound);
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
    case EROFS:
      return Error(ErrorNumber::permissionDenied);
    case EEXIST:
      return Error(ErrorNumber::fileExists);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Error(ErrorNumber::diskFull);
    case EIO:
    case ENXIO:
    case ENODEV:
      return Error(ErrorNumber::deviceIo);
    case ENOMEM:
      return Error(ErrorNumber::outOfMemory);
    case EISDIR:
    case ELOOP:
    case ENOTEMPTY:
    case EXDEV:
      return Error(ErrorNumber::accessError);
    default:
      return {ErrorNumber::internal, std::generic_category().message(systemNumber)};
  }
}

void throwSystemError() { throw errorFor(errno); }

const char* kernelPath(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw Error(ErrorNumber::fileNotFound);
  return path.c_str();
}

}  // namespace zelvane::platform
