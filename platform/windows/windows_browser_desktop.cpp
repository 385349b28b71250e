#include "platform/windows/windows_browser_desktop.h"

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include <windows.h>
#include <shlobj.h>

#include "platform/error.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/browsers/browser.h"
#include "platform/windows/entry_kind.h"
#include "platform/windows/file_place.h"
#include "platform/windows/final_path.h"
#include "platform/windows/folder_entries.h"
#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "platform/windows/open_within.h"
#include "platform/windows/system_error.h"
#include "platform/windows/user_sid.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct FreeTask {
  void operator()(wchar_t* text) const { CoTaskMemFree(text); }
};

void addKnownFolder(UserFolders& folders, const char* name, const KNOWNFOLDERID& known) {
  wchar_t* allocated = nullptr;
  const HRESULT result = SHGetKnownFolderPath(known, KF_FLAG_DEFAULT, nullptr, &allocated);
  const std::unique_ptr<wchar_t, FreeTask> path(allocated);
  if (SUCCEEDED(result)) folders.emplace(name, withoutClosingSeparators(plainText(path.get())));
}

// A link itself, and not what it leads to.
Handle openItself(const std::string& path, DWORD access, DWORD share = kShareAll) {
  return Handle(CreateFileW(longPath(path).c_str(), access, share, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

bool saysThatNothingIsThere(DWORD code) {
  return code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND || code == ERROR_INVALID_NAME;
}

// What the handle tells; under Wine it tells of what a link leads to, and the paths tell the rest.
EntryKind kindOfOpened(HANDLE opened, const std::string& path) {
  if (followsUnixLinks()) {
    const FilePlace place = placeOf(path);
    if (!isEntryOf(place.folder.get(), place.name, opened)) return EntryKind::link;
  }
  return factsOf(opened).kind;
}

// "C:/folder" of "\\?\C:\folder", "//server/share" of "\\?\UNC\server\share".
std::string usualForm(std::wstring_view path) {
  constexpr std::wstring_view kServer = LR"(\\?\UNC\)";
  constexpr std::wstring_view kLongForm = LR"(\\?\)";
  std::string text =
      path.starts_with(kServer)
          ? "//" + plainText(path.substr(kServer.size()))
          : plainText(path.starts_with(kLongForm) ? path.substr(kLongForm.size()) : path);
  std::ranges::replace(text, '\\', '/');
  return text;
}

std::optional<std::string> realPath(HANDLE opened) {
  const std::optional<std::wstring> path = finalPath(opened);
  return path ? std::optional(withoutClosingSeparators(usualForm(*path))) : std::nullopt;
}

bool holds(std::string_view folder, std::string_view inner) {
  if (!sameName(folder, inner.substr(0, folder.size()))) return false;
  return inner.size() == folder.size() || folder.ends_with('/') || inner[folder.size()] == '/';
}

void move(const std::string& from, const std::string& to) {
  if (MoveFileExW(longPath(from).c_str(), longPath(to).c_str(), MOVEFILE_WRITE_THROUGH) == 0) {
    throwSystemError();
  }
}

}  // namespace

UserFolders foldersOfUser() {
  UserFolders folders;
  addKnownFolder(folders, "home", FOLDERID_Profile);
  addKnownFolder(folders, "roaming", FOLDERID_RoamingAppData);
  addKnownFolder(folders, "local", FOLDERID_LocalAppData);
  return folders;
}

std::optional<std::string> WindowsBrowserDesktop::ownFolder(const std::string& path) const {
  try {
    const std::string name = withoutClosingSeparators(path);
    const Handle folder = openItself(name, FILE_READ_ATTRIBUTES | READ_CONTROL);
    const auto home = folders_.find("home");
    if (!folder.isOpen() || kindOfOpened(folder.get(), name) != EntryKind::folder ||
        home == folders_.end()) {
      return std::nullopt;
    }
    const Handle homeFolder(CreateFileW(longPath(home->second).c_str(), FILE_READ_ATTRIBUTES,
                                        kShareAll, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    const std::optional<std::string> real = realPath(folder.get());
    const std::optional<std::string> realHome = realPath(homeFolder.get());
    if (!real || !realHome || holds(*real, *realHome) || !isOwn(folder.get())) return std::nullopt;
    return real;
  } catch (const Error&) {
    return std::nullopt;  // whose it is cannot be told, or a name is none
  }
}

PathKind WindowsBrowserDesktop::kindOf(const std::string& path) const {
  try {
    const Handle entry = openItself(path, FILE_READ_ATTRIBUTES);
    if (!entry.isOpen()) {
      return saysThatNothingIsThere(GetLastError()) ? PathKind::nothing : PathKind::other;
    }
    const EntryKind kind = kindOfOpened(entry.get(), path);
    if (kind == EntryKind::folder) return PathKind::folder;
    return kind == EntryKind::file ? PathKind::file : PathKind::other;
  } catch (const Error&) {
    return PathKind::other;
  }
}

std::vector<std::string> WindowsBrowserDesktop::namesIn(const std::string& folder) const {
  std::vector<std::string> names;
  try {
    const Handle opened = openItself(folder, FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES);
    if (!opened.isOpen()) return names;
    FolderReader().read(opened.get(), [&](std::span<const Entry> piece) {
      for (const Entry& entry : piece) names.push_back(plainText(entry.name));
    });
  } catch (const Error&) {
    names.clear();
  }
  return names;
}

bool WindowsBrowserDesktop::isOpen(const Profile& profile) const {
  if (isHeld(profile.folder + "/parent.lock") || isHeld(profile.root + "/lockfile")) return true;
  const FamilyRules& rules = rulesOf(profile.family);
  const auto isHeldInProfile = [&](std::string_view file) {
    return isHeld(profile.folder + "/" + std::string(file));
  };
  return std::ranges::any_of(rules.databases, isHeldInProfile, &DatabaseRule::file) ||
         std::ranges::any_of(rules.levelDbs, [&](const LevelDbRule& rule) {
           return isHeldInProfile(std::string(rule.folder) + "/LOCK");
         });
}

// What has that name and is no file is nobody's lock.
bool WindowsBrowserDesktop::isHeld(const std::string& path) const {
  if (kindOf(path) != PathKind::file) return false;
  const Handle file = openItself(path, GENERIC_READ, 0);
  return !file.isOpen() && !saysThatNothingIsThere(GetLastError());
}

void WindowsBrowserDesktop::putInPlace(const std::string& fresh, const std::string& path,
                                       const std::string& aside) const {
  move(path, aside);
  try {
    move(fresh, path);
  } catch (const Error&) {
    move(aside, path);
    throw;
  }
}

void WindowsBrowserDesktop::rename(const std::string& from, const std::string& to) const {
  move(from, to);
}

// It is the program's own folder, so it is there.
void WindowsBrowserDesktop::provideFolder(const std::string& path) const {
  if (kindOf(path) != PathKind::folder) throw Error(ErrorNumber::pathNotFound, path);
}

}  // namespace zelvane::platform
