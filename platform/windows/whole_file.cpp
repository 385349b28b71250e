#include "platform/windows/whole_file.h"

#include <memory>

#include <windows.h>

#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

struct CloseFile {
  using pointer = HANDLE;
  void operator()(HANDLE file) const { CloseHandle(file); }
};
using File = std::unique_ptr<HANDLE, CloseFile>;

File openFile(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) {
  const HANDLE file = CreateFileW(path.c_str(), access, share, nullptr, disposition,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  return File(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

void writeNew(const std::wstring& path, std::string_view content) {
  const File file = openFile(path, GENERIC_WRITE, 0, CREATE_NEW);
  if (!file) throwSystemError();
  DWORD written = 0;
  const auto size = static_cast<DWORD>(content.size());
  if (WriteFile(file.get(), content.data(), size, &written, nullptr) == 0) throwSystemError();
  if (written != size) throw Error(ErrorNumber::diskFull);
  if (FlushFileBuffers(file.get()) == 0) throwSystemError();
}

}  // namespace

std::optional<std::string> readWholeFile(const std::wstring& path) {
  const File file = openFile(path, GENERIC_READ,
                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
  if (!file) {
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

void replaceWholeFile(const std::wstring& path, std::string_view content) {
  const std::wstring beside = path + L".zelvane-" + std::to_wstring(GetCurrentProcessId());
  // What an earlier process of this number left when it was killed.
  DeleteFileW(beside.c_str());
  try {
    writeNew(beside, content);
    const DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (MoveFileExW(beside.c_str(), path.c_str(), how) == 0) throwSystemError();
  } catch (const Error&) {
    DeleteFileW(beside.c_str());
    throw;
  }
}

}  // namespace zelvane::platform
