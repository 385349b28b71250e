#include "tests/contract/folder_tree_bed_windows.h"

#include <stdexcept>

#include <sddl.h>
#include <windows.h>

#include "platform/windows/long_path.h"
#include "platform/windows/open_within.h"
#include "platform/windows/wide_text.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {

using platform::createWithin;
using platform::Handle;
using platform::longPath;

namespace {

constexpr DWORD kRead = FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kFileIsDirectory = 0x00000001;

void succeed(bool succeeded, const std::string& what) {
  if (!succeeded) throw std::runtime_error(what + ": error " + std::to_string(GetLastError()));
}

std::string above(const std::string& path) { return path.substr(0, path.find_last_of("/\\")); }

Handle openFolder(const std::string& path) {
  Handle opened(CreateFileW(longPath(path).c_str(), kRead, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  succeed(opened.isOpen(), path);
  return opened;
}

}  // namespace

void makeFolders(const std::string& path) {
  if (isThere(path)) return;
  makeFolders(above(path));
  succeed(CreateDirectoryW(longPath(path).c_str(), nullptr) != 0, path);
}

void makeFile(const std::string& path, const std::string& content) {
  makeFolders(above(path));
  const Handle file(CreateFileW(longPath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  succeed(file.isOpen(), path);
  DWORD written = 0;
  succeed(WriteFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &written,
                    nullptr) != 0,
          path);
}

void makeLink(const std::string& path, const std::string& target) {
  if (runsUnderWine()) {
    runUnixTool("ln", {"-s", "--", unixPath(target), unixPath(path)});
    return;
  }
  const DWORD attributes = attributesOf(target);
  const bool toFolder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  succeed(CreateSymbolicLinkW(longPath(path).c_str(), longPath(target).c_str(),
                              SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE |
                                  (toFolder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0)) != 0,
          path);
}

bool isThere(const std::string& path) { return attributesOf(path) != INVALID_FILE_ATTRIBUTES; }

void setAttributes(const std::string& path, DWORD attributes) {
  succeed(SetFileAttributesW(longPath(path).c_str(), attributes) != 0, path);
}

DWORD attributesOf(const std::string& path) { return GetFileAttributesW(longPath(path).c_str()); }

void denyEverything(const std::string& path) {
  PSECURITY_DESCRIPTOR nobody = nullptr;
  succeed(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P", SDDL_REVISION_1, &nobody,
                                                               nullptr) != 0,
          path);
  const bool done =
      SetFileSecurityW(longPath(path).c_str(),
                       DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                       nobody) != 0;
  LocalFree(nobody);
  succeed(done, path);
}

WindowsFolderTreeBed::WindowsFolderTreeBed(Options options) : tree_(options) {
  makeFolders(root());
}

void WindowsFolderTreeBed::addFile(const std::string& name) { makeFile(path(name)); }

void WindowsFolderTreeBed::addReadOnlyFile(const std::string& name) {
  addFile(name);
  setAttributes(path(name), FILE_ATTRIBUTE_READONLY);
}

void WindowsFolderTreeBed::addReadOnlyFolder(const std::string& name) {
  addFolder(name);
  setAttributes(path(name), FILE_ATTRIBUTE_READONLY);
}

void WindowsFolderTreeBed::addUnreadableFolder(const std::string& name) {
  addFolder(name);
  denyEverything(path(name));
}

void WindowsFolderTreeBed::addSocket(const std::string&) {
  throw std::logic_error("no sockets here");
}

void WindowsFolderTreeBed::addLink(const std::string& name, const std::string& target) {
  makeLink(path(name), target);
}

// Held in the mildest way: reading alone, and everything allowed to others.
void WindowsFolderTreeBed::addFileInUse(const std::string& name) {
  addFile(name);
  inUse_ = Handle(CreateFileW(longPath(path(name)).c_str(), GENERIC_READ, kShareAll, nullptr,
                              OPEN_EXISTING, 0, nullptr));
  succeed(inUse_.isOpen(), name);
}

std::string WindowsFolderTreeBed::addHiddenFile(const std::string& name) {
  addFile(name);
  setAttributes(path(name), FILE_ATTRIBUTE_HIDDEN);
  return name;
}

std::string WindowsFolderTreeBed::addHiddenFolder(const std::string& name) {
  addFolder(name);
  setAttributes(path(name), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  return name;
}

void WindowsFolderTreeBed::mountVolume(const std::string&) { throw std::logic_error("no mounts"); }

void WindowsFolderTreeBed::mountAgain(const std::string&, const std::string&) {
  throw std::logic_error("no mounts");
}

void WindowsFolderTreeBed::addDeepFolders(int levels, const std::string& name) {
  const std::wstring wide = platform::wideText(name);
  Handle level = openFolder(root());
  for (int made = 0; made < levels; ++made) {
    level =
        createWithin(level.get(), wide, {.access = kRead, .options = kFileIsDirectory}, nullptr);
    succeed(level.isOpen(), name);
    if (made % 10 == 0) {
      succeed(createWithin(level.get(), L"f", {.access = GENERIC_WRITE}, nullptr).isOpen(), "f");
    }
  }
}

void WindowsFolderTreeBed::vanish(const std::string& name) {
  succeed(RemoveDirectoryW(longPath(path(name)).c_str()) != 0, name);
}

void WindowsFolderTreeBed::rename(const std::string& from, const std::string& to) {
  succeed(MoveFileW(longPath(path(from)).c_str(), longPath(path(to)).c_str()) != 0, from);
}

std::string WindowsFolderTreeBed::whyNoMounts() const {
  return "mounting a volume takes an administrator";
}

std::string WindowsFolderTreeBed::whyNoSockets() const {
  return "sockets are in folders only where Windows holds a Linux";
}

std::string WindowsFolderTreeBed::whyNotSoDeep() const {
  return runsUnderWine() ? "Wine takes twice as deep a tree for eight times as long" : "";
}

std::string WindowsFolderTreeBed::whyVanishedLooksEmpty() const {
  return runsUnderWine() ? "Wine tells nothing of an open folder that was deleted" : "";
}

std::string WindowsFolderTreeBed::whyPathsDecide() const {
  return runsUnderWine() ? "Wine goes by paths and follows links by itself" : "";
}

}  // namespace zelvane::test
