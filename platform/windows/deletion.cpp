#include "platform/windows/deletion.h"

namespace zelvane::platform {
namespace {

bool setAttributes(HANDLE entry, DWORD attributes) {
  FILE_BASIC_INFO basic{};  // times of zero stay as they are, and so would attributes
  basic.FileAttributes = attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
  return SetFileInformationByHandle(entry, FileBasicInfo, &basic, sizeof basic) != 0;
}

}  // namespace

Handle openToDelete(const std::function<Handle(DWORD access)>& open) {
  constexpr DWORD kNeeded = DELETE | FILE_READ_ATTRIBUTES;
  Handle entry = open(kNeeded | FILE_WRITE_ATTRIBUTES);
  if (entry.isOpen() || GetLastError() != ERROR_ACCESS_DENIED) return entry;
  return open(kNeeded);
}

bool deleteOpen(HANDLE entry, DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_READONLY) == 0) return deleteWhenClosed(entry, true);
  if (!setAttributes(entry, attributes & ~DWORD{FILE_ATTRIBUTE_READONLY})) return false;
  const bool deleted = deleteWhenClosed(entry, true);
  const DWORD code = GetLastError();
  // Nothing can be done where this fails, and nothing is lost but the attribute.
  setAttributes(entry, attributes);
  SetLastError(code);
  return deleted;
}

bool deleteWhenClosed(HANDLE file, bool deleted) {
  FILE_DISPOSITION_INFO disposition{};
  disposition.DeleteFile = deleted ? TRUE : FALSE;
  return SetFileInformationByHandle(file, FileDispositionInfo, &disposition, sizeof disposition) !=
         0;
}

}  // namespace zelvane::platform
