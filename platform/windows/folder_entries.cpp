#include "platform/windows/folder_entries.h"

#include "platform/error.h"
#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kPiece = 65536;  // bytes

// A folder that was deleted is there as long as somebody holds it open, and may look empty.
bool isGone(HANDLE folder) {
  FILE_STANDARD_INFO standard{};
  return GetFileInformationByHandleEx(folder, FileStandardInfo, &standard, sizeof standard) != 0 &&
         standard.DeletePending != FALSE;
}

}  // namespace

void FolderReader::read(HANDLE folder, const Use& use) {
  if (isGone(folder)) throw Error(ErrorNumber::pathNotFound);
  buffer_.resize(kPiece);
  for (bool more = fill(folder, true); more; more = fill(folder, false)) {
    takeEntries();
    use(entries_);
  }
}

// False at the end.
bool FolderReader::fill(HANDLE folder, bool fromTheStart) {
  const auto how = fromTheStart ? FileIdBothDirectoryRestartInfo : FileIdBothDirectoryInfo;
  if (GetFileInformationByHandleEx(folder, how, buffer_.data(), kPiece) != 0) return true;
  // A volume's first folder, which has no "." and "..", may hold nothing at all.
  if (GetLastError() == ERROR_NO_MORE_FILES || GetLastError() == ERROR_FILE_NOT_FOUND) return false;
  throwSystemError();
}

void FolderReader::takeEntries() {
  entries_.clear();
  for (std::size_t at = 0;;) {
    const auto* raw = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(buffer_.data() + at);
    const std::wstring_view name(raw->FileName, raw->FileNameLength / sizeof(wchar_t));
    if (name != L"." && name != L"..") {
      // Of a reparse point this field tells the tag.
      entries_.push_back({name, {kindOf(raw->FileAttributes, raw->EaSize), raw->FileAttributes}});
    }
    if (raw->NextEntryOffset == 0) return;
    at += raw->NextEntryOffset;
  }
}

}  // namespace zelvane::platform
