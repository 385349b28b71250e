#include "platform/windows/entry_kind.h"

#include "platform/windows/system_error.h"

namespace zelvane::platform {
namespace {

// Tags of the Windows Subsystem for Linux, which not every compiler's headers have.
constexpr DWORD kLinuxLink = 0xA000001D;
constexpr DWORD kLinuxSocket = 0x80000023;
constexpr DWORD kLinuxPipe = 0x80000024;
constexpr DWORD kLinuxCharacterDevice = 0x80000025;
constexpr DWORD kLinuxBlockDevice = 0x80000026;

}  // namespace

EntryKind kindOf(DWORD attributes, DWORD reparseTag) {
  const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return isFolder ? EntryKind::folder : EntryKind::file;
  }
  switch (reparseTag) {
    case IO_REPARSE_TAG_SYMLINK:
    case kLinuxLink:
      return EntryKind::link;
    case kLinuxSocket:
    case kLinuxPipe:
    case kLinuxCharacterDevice:
    case kLinuxBlockDevice:
      return EntryKind::other;
    default:
      // A file whose content is stored in another way (compressed, in a cloud) is still a file.
      return isFolder ? EntryKind::place : EntryKind::file;
  }
}

EntryFacts factsOf(HANDLE entry) {
  FILE_BASIC_INFO basic{};
  if (GetFileInformationByHandleEx(entry, FileBasicInfo, &basic, sizeof basic) == 0) {
    throwSystemError();
  }
  FILE_ATTRIBUTE_TAG_INFO tag{};
  // Asked only where there is one: some file systems do not know the question.
  if ((basic.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
      GetFileInformationByHandleEx(entry, FileAttributeTagInfo, &tag, sizeof tag) == 0) {
    throwSystemError();
  }
  return {kindOf(basic.FileAttributes, tag.ReparseTag), basic.FileAttributes};
}

}  // namespace zelvane::platform
