#include "tests/contract/folder_tree_bed_windows.h"

#include <stdexcept>

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

Handle openFolder(const std::string& path) {
  Handle opened(CreateFileW(longPath(path).c_str(), kRead, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  succeed(opened.isOpen(), path);
  return opened;
}

}  // namespace

WindowsFolderTreeBed::WindowsFolderTreeBed(Way way) : tree_({.way = way}) { makeFolders(root()); }

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
