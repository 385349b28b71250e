#include "platform/windows/file_place.h"

#include <utility>

#include "platform/error.h"
#include "platform/windows/long_path.h"
#include "platform/windows/open_within.h"
#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

}  // namespace

FilePlace placeOf(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  const std::size_t start = separator == std::string::npos ? 0 : separator + 1;
  std::wstring name = singleName(path.substr(start));
  const std::wstring above = longPath(start == 0 ? "." : path.substr(0, start));
  Handle folder(CreateFileW(above.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!folder.isOpen()) {
    const Error error = errorFor(GetLastError());
    throw error.number() == ErrorNumber::fileNotFound ? Error(ErrorNumber::pathNotFound) : error;
  }
  return {std::move(folder), std::move(name)};
}

}  // namespace zelvane::platform
