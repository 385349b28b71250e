#include "platform/windows/whole_file.h"

#include <utility>

#include <windows.h>

#include "platform/windows/file_place.h"
#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "platform/windows/system_error.h"
#include "platform/windows/windows_pending_file.h"

namespace zelvane::platform {

std::optional<std::string> readWholeFile(const std::string& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const Handle file(CreateFileW(longPath(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                                OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  if (!file.isOpen()) {
    const DWORD code = GetLastError();
    if (code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND) return std::nullopt;
    throw errorFor(code);
  }
  BY_HANDLE_FILE_INFORMATION information{};
  if (GetFileInformationByHandle(file.get(), &information) == 0) throwSystemError();
  const bool isLink = (information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  const std::uint64_t size =
      std::uint64_t{information.nFileSizeHigh} << 32U | information.nFileSizeLow;
  if (isLink || size > kLargestWholeFile) throw Error(ErrorNumber::accessError);
  std::string content(static_cast<std::size_t>(size), '\0');
  DWORD read = 0;
  if (ReadFile(file.get(), content.data(), static_cast<DWORD>(size), &read, nullptr) == 0) {
    throwSystemError();
  }
  content.resize(read);
  return content;
}

void replaceWholeFile(const std::string& path, std::string_view content) {
  FilePlace place = placeOf(path);
  WindowsPendingFile file(std::move(place.folder), std::move(place.name),
                          WindowsPendingFile::Rights::ofFolder);
  file.write(content);
  file.publish();
}

}  // namespace zelvane::platform
