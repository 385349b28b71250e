#include "platform/windows/system_error.h"

#include <memory>
#include <string>

#include <windows.h>

#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

struct LocalMemory {
  void operator()(wchar_t* text) const { LocalFree(text); }
};

std::string systemsWords(std::uint32_t code) {
  wchar_t* allocated = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, code, 0, reinterpret_cast<wchar_t*>(&allocated), 0, nullptr);
  const std::unique_ptr<wchar_t, LocalMemory> text(allocated);
  std::string words = length == 0 ? std::string() : plainText({text.get(), length});
  words.erase(words.find_last_not_of("\r\n. ") + 1);
  return words.empty() ? "Error " + std::to_string(code) : words;
}

}  // namespace

Error errorFor(std::uint32_t systemCode) {
  switch (systemCode) {
    case ERROR_FILE_NOT_FOUND:
      return Error(ErrorNumber::fileNotFound);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_INVALID_DRIVE:
      return Error(ErrorNumber::pathNotFound);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_USER_MAPPED_FILE:
      return Error(ErrorNumber::permissionDenied);
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return Error(ErrorNumber::fileExists);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return Error(ErrorNumber::diskFull);
    case ERROR_NOT_READY:
    case ERROR_CRC:
    case ERROR_IO_DEVICE:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
      return Error(ErrorNumber::deviceIo);
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return Error(ErrorNumber::outOfMemory);
    case ERROR_DIR_NOT_EMPTY:
    case ERROR_DIRECTORY:
    case ERROR_CANT_ACCESS_FILE:
      return Error(ErrorNumber::accessError);
    default:
      return {ErrorNumber::internal, systemsWords(systemCode)};
  }
}

void throwSystemError() { throw errorFor(GetLastError()); }

}  // namespace zelvane::platform
