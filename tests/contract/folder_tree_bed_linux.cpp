#include "tests/contract/folder_tree_bed_linux.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace zelvane::test {

namespace fs = std::filesystem;

namespace {

void succeed(int result, const std::string& what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
}

// "folder/file" becomes "folder/.file".
std::string dotted(const std::string& name) {
  const std::size_t start = name.rfind('/') + 1;
  return name.substr(0, start) + "." + name.substr(start);
}

}  // namespace

LinuxFolderTreeBed::LinuxFolderTreeBed(platform::LinuxFolderTree::Options options)
    : tree_(options) {
  fs::create_directory(root());
}

void LinuxFolderTreeBed::addFile(const std::string& name) { folder.write("root/" + name); }

void LinuxFolderTreeBed::addReadOnlyFile(const std::string& name) {
  addFile(name);
  fs::permissions(path(name), fs::perms::owner_read);
}

void LinuxFolderTreeBed::addFolder(const std::string& name) { fs::create_directories(path(name)); }

void LinuxFolderTreeBed::addReadOnlyFolder(const std::string& name) {
  addFolder(name);
  fs::permissions(path(name), fs::perms::owner_read | fs::perms::owner_exec);
}

void LinuxFolderTreeBed::addUnreadableFolder(const std::string& name) {
  addFolder(name);
  fs::permissions(path(name), fs::perms::none);
}

void LinuxFolderTreeBed::addSocket(const std::string& name) {
  const platform::Descriptor descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path(name).copy(address.sun_path, sizeof address.sun_path - 1);
  succeed(bind(descriptor.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), name);
}

void LinuxFolderTreeBed::addLink(const std::string& name, const std::string& target) {
  fs::create_symlink(target, path(name));
}

void LinuxFolderTreeBed::addFileInUse(const std::string& name) {
  addFile(name);
  inUse_ = platform::Descriptor(open(path(name).c_str(), O_RDONLY | O_CLOEXEC));
  succeed(inUse_.get(), name);
}

std::string LinuxFolderTreeBed::addHiddenFile(const std::string& name) {
  addFile(dotted(name));
  return dotted(name);
}

std::string LinuxFolderTreeBed::addHiddenFolder(const std::string& name) {
  addFolder(dotted(name));
  return dotted(name);
}

PrivateMounts& LinuxFolderTreeBed::mounts() const { return mounts_ ? *mounts_ : mounts_.emplace(); }

std::string LinuxFolderTreeBed::whyNoMounts() const { return mounts().whyNot(); }

std::string LinuxFolderTreeBed::whyNoRefusals() const {
  return geteuid() == 0 ? "root may read and write everything" : "";
}

void LinuxFolderTreeBed::mountVolume(const std::string& name) { mounts().mountVolume(path(name)); }

void LinuxFolderTreeBed::mountAgain(const std::string& folderName, const std::string& name) {
  mounts().mountAgain(path(folderName), path(name));
}

void LinuxFolderTreeBed::addDeepFolders(int levels) {
  platform::Descriptor level(open(root().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  for (int made = 0; made < levels; ++made) {
    succeed(mkdirat(level.get(), "d", 0700), "d");
    level = platform::Descriptor(openat(level.get(), "d", O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (made % 10 == 0) succeed(mknodat(level.get(), "f", S_IFREG | 0600, 0), "f");
  }
}

void LinuxFolderTreeBed::vanish(const std::string& name) { fs::remove_all(path(name)); }

void LinuxFolderTreeBed::rename(const std::string& from, const std::string& to) {
  fs::rename(path(from), path(to));
}

}  // namespace zelvane::test
