#include "platform/error.h"

namespace zelvane::platform {

const char* description(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::overflow:
      return "Overflow";
    case ErrorNumber::outOfMemory:
      return "Out of memory";
    case ErrorNumber::typeMismatch:
      return "Type mismatch";
    case ErrorNumber::internal:
      return "Internal error";
    case ErrorNumber::fileNotFound:
      return "File not found";
    case ErrorNumber::deviceIo:
      return "Device I/O error";
    case ErrorNumber::fileExists:
      return "File already exists";
    case ErrorNumber::diskFull:
      return "Disk full";
    case ErrorNumber::permissionDenied:
      return "Permission denied";
    case ErrorNumber::accessError:
      return "Path/File access error";
    case ErrorNumber::pathNotFound:
      return "Path not found";
    case ErrorNumber::invalidPropertyValue:
      return "Invalid property value";
  }
  return "Internal error";
}

}  // namespace zelvane::platform
