#include "tests/desktop/windows/throw_away_world.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <windows.h>

#include "platform/windows/wide_text.h"
#include "tests/support/remove_tree.h"
#include "tests/support/windows/disk.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {

namespace fs = std::filesystem;

using platform::plainText;
using platform::wideText;

namespace {

constexpr auto kFolderNames =
    R"(Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders)";
// What the system notes there of the folders that it was asked for.
constexpr auto kAskedFolders =
    R"(Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders)";

std::string variable(const wchar_t* name) {
  const wchar_t* text = _wgetenv(name);
  return text == nullptr ? std::string() : plainText(text);
}

// The environment that Wine uses if nobody names one holds a user's own programs and files.
void requireThrowAwayEnvironment() {
  if (!runsUnderWine()) {
    throw std::runtime_error("this presses buttons that erase files: under Wine only");
  }
  const std::string environment = variable(L"WINECONFIGDIR");
  if (environment.empty() || environment == variable(L"WINEHOMEDIR") + "\\.wine") {
    throw std::runtime_error("this presses buttons that erase files: not in a user's own Wine");
  }
}

ThrowAwayFolder newFolder() {
  requireThrowAwayEnvironment();
  return {};
}

}  // namespace

ThrowAwayWorld::ThrowAwayWorld() : folder_(newFolder()) {
  for (const char* path : {kZelvane, kBrowser, kTypedAddresses, kRunHistory, kAutoComplete, kRun,
                           kFolderNames, kAskedFolders}) {
    kept_.emplace_back(path);
  }
  RegistryTree keyWithoutValues;
  keyWithoutValues[std::wstring()];
  for (const char* path : {kZelvane, kTypedAddresses, kRunHistory}) replaceKeys(path, std::nullopt);
  for (const char* path : {kBrowser, kAutoComplete, kRun}) replaceKeys(path, keyWithoutValues);
  setProfileEntry(std::nullopt);
  for (const auto& [name, path] : specialFolders()) {
    makeFolders(path);
    nameFolder(name, path);
  }
  makeFolders(roaming());
  nameFolder("AppData", roaming());
  makeFolders(temporary());
  makeFolders(folder_ / "home/.local/share");
  // The trash is that of the Unix below.
  variables_[L"XDG_DATA_HOME"] = unixPath(folder_ / "home/.local/share");
  nameTemporary(temporary());
}

ThrowAwayWorld::~ThrowAwayWorld() { setProfileEntry(keptEntry_); }

std::vector<std::pair<std::string, std::string>> ThrowAwayWorld::specialFolders() const {
  return {{"Personal", documents()}, {"Favorites", favorites()}, {"Recent", recent()},
          {"Cache", cache()},        {"Cookies", cookies()},     {"History", history()}};
}

std::string ThrowAwayWorld::discard(const std::string& name) const {
  const std::string file = trash() + "\\files\\" + name;
  makeFile(file);
  makeFile(trash() + "\\info\\" + name + ".trashinfo",
           "[Trash Info]\nPath=/gone/" + name + "\nDeletionDate=2025-05-05T12:00:00\n");
  return file;
}

void ThrowAwayWorld::nameFolder(const std::string& name, const std::string& path) {
  setUserText(kFolderNames, name, path);
}

void ThrowAwayWorld::nameTemporary(const std::string& path) {
  variables_[L"TEMP"] = path;
  variables_[L"TMP"] = path;
}

void ThrowAwayWorld::removeTrash() const { removeTree(wideText(folder_ / "home")); }

std::vector<std::string> ThrowAwayWorld::files() const {
  auto folders = specialFolders();
  folders.emplace_back("", temporary());
  std::vector<std::string> found;
  for (const auto& [name, folder] : folders) {
    std::error_code error;
    for (fs::recursive_directory_iterator at(wideText(folder), error), end; at != end;
         at.increment(error)) {
      if (!at->is_directory(error)) found.push_back(plainText(at->path().native()));
    }
    if (error && error != std::errc::no_such_file_or_directory)
      throw fs::filesystem_error("", error);
  }
  return found;
}

std::wstring ThrowAwayWorld::environment() const {
  std::wstring block;
  wchar_t* all = GetEnvironmentStringsW();
  for (const wchar_t* one = all; *one != L'\0';) {
    const std::wstring line = one;
    if (!variables_.contains(line.substr(0, line.find(L'=', 1)))) block += line + L'\0';
    one += line.size() + 1;
  }
  FreeEnvironmentStringsW(all);
  for (const auto& [name, text] : variables_) block += name + L'=' + wideText(text) + L'\0';
  return block + L'\0';
}

void ThrowAwayWorld::setProfileEntry(const std::optional<std::string>& text) {
  WriteProfileStringW(L"Extensions", L"DVK", text ? wideText(*text).c_str() : nullptr);
  WriteProfileStringW(nullptr, nullptr, nullptr);  // and it is on disk
}

std::optional<std::string> ThrowAwayWorld::profileEntry() {
  constexpr auto kNone = L"(none)";
  wchar_t text[512] = L"";
  GetProfileStringW(L"Extensions", L"DVK", kNone, text, 512);
  if (std::wstring_view(text) == kNone) return std::nullopt;
  return plainText(text);
}

}  // namespace zelvane::test
