#include "tests/support/remove_tree.h"

#include <memory>
#include <string>

#include <windows.h>

#include "platform/windows/long_path.h"
#include "platform/windows/wide_text.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

struct CloseSearch {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};

// `path` is in the form for long ones.
void removeFolder(const std::wstring& path) {
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    const std::unique_ptr<HANDLE, CloseSearch> closing(search);
    do {
      const std::wstring name = entry.cFileName;
      if (name == L"." || name == L"..") continue;
      const std::wstring below = path + L"\\" + name;
      const DWORD attributes = entry.dwFileAttributes;
      SetFileAttributesW(below.c_str(), FILE_ATTRIBUTE_NORMAL);
      if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        DeleteFileW(below.c_str());
      } else if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        removeFolder(below);
      } else {
        RemoveDirectoryW(below.c_str());
      }
    } while (FindNextFileW(search, &entry) != 0);
  }
  RemoveDirectoryW(path.c_str());
}

}  // namespace

void removeTree(const std::filesystem::path& folder) {
  const std::string plain = platform::plainText(folder.native());
  // Links would be followed there, and paths end earlier than the trees that tests make.
  if (runsUnderWine()) {
    const std::string there = unixPath(plain);
    runUnixTool("chmod", {"-R", "u+rwx", "--", there});
    runUnixTool("rm", {"-rf", "--", there});
  } else {
    removeFolder(platform::longPath(plain));
  }
}

}  // namespace zelvane::test
