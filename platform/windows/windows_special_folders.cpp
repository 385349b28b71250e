#include "platform/windows/windows_special_folders.h"

#include <algorithm>
#include <utility>

#include <shlobj.h>

#include "platform/windows/final_path.h"
#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::optional<std::string> shellsFolder(HWND owner, int number) {
  wchar_t path[MAX_PATH] = {};
  if (SHGetSpecialFolderPathW(owner, path, number, FALSE) == FALSE) return std::nullopt;
  return plainText(path);
}

// The text that `ask` writes, given room for it; nothing where it fails.
std::optional<std::string> textFrom(const std::function<DWORD(DWORD, wchar_t*)>& ask) {
  std::wstring text(MAX_PATH + 1, L'\0');
  DWORD length = ask(static_cast<DWORD>(text.size()), text.data());
  if (length > text.size()) {
    text.resize(length);
    length = ask(static_cast<DWORD>(text.size()), text.data());
  }
  if (length == 0 || length >= text.size()) return std::nullopt;
  text.resize(length);
  return plainText(text);
}

// A folder told apart from all others whatever it is called, or nothing where there is none.
std::optional<BY_HANDLE_FILE_INFORMATION> folderAt(const std::wstring& path) {
  const Handle folder(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION facts{};
  if (!folder.isOpen() || GetFileInformationByHandle(folder.get(), &facts) == 0 ||
      (facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    return std::nullopt;
  }
  return facts;
}

bool isSame(const BY_HANDLE_FILE_INFORMATION& one, const BY_HANDLE_FILE_INFORMATION& other) {
  return one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
         one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

// The path without links in it, as far as its folders exist; otherwise as it is.
std::wstring realPath(const std::wstring& path) {
  const Handle folder(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  return finalPath(folder.get()).value_or(path);
}

// Each folder above `path`, and itself, compared as folders and not as texts: a link, another
// drive's letter or a short name may give the kept one another name.
bool isOrHolds(const BY_HANDLE_FILE_INFORMATION& folder, const std::wstring& path) {
  for (std::wstring level = path;;) {
    const auto here = folderAt(level);
    if (here && isSame(*here, folder)) return true;
    while (level.ends_with(L'\\')) level.pop_back();
    const std::size_t separator = level.rfind(L'\\');
    // Four characters begin each such path: "\\?\".
    if (separator == std::wstring::npos || separator < 4) return false;
    level.resize(separator + 1);
  }
}

}  // namespace

SystemFolders systemFolders(std::function<HWND()> owner) {
  return {.special =
              [owner = std::move(owner)](SpecialFolder folder) {
                return shellsFolder(owner(), static_cast<int>(folder));
              },
          .temporary = [] { return textFrom(GetTempPathW); },
          .kept = {shellsFolder(nullptr, CSIDL_PROFILE), shellsFolder(nullptr, CSIDL_WINDOWS)}};
}

WindowsSpecialFolders::WindowsSpecialFolders(SystemFolders folders)
    : folders_(std::move(folders)) {}

std::optional<std::string> WindowsSpecialFolders::path(SpecialFolder folder) const {
  const std::optional<std::string> said = folders_.special(folder);
  if (!said || !isUsable(*said)) return std::nullopt;
  return withoutClosingSeparators(*said);
}

std::optional<std::string> WindowsSpecialFolders::temporaryPath() const {
  const std::optional<std::string> said = folders_.temporary();
  if (!said || !isUsable(*said)) return std::nullopt;
  const std::string folder = withoutClosingSeparators(*said);
  return folder.ends_with('\\') ? folder : folder + "\\";
}

bool WindowsSpecialFolders::isUsable(const std::string& path) const {
  if (path.empty() || path.find('\0') != std::string::npos) return false;
  const auto folder = folderAt(longPath(path));
  return folder && std::ranges::none_of(folders_.kept, [&](const auto& kept) {
           if (!kept) return true;
           const std::wstring text = longPath(*kept);
           return isOrHolds(*folder, text) || isOrHolds(*folder, realPath(text));
         });
}

}  // namespace zelvane::platform
