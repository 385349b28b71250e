#include "tests/support/zoo/zoo_world.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace zelvane::test {

namespace fs = std::filesystem;
using platform::Descriptor;

namespace {

void succeed(int result, const std::string& what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

ZooWorld::ZooWorld(fs::path folder) : folder_(std::move(folder)) {
  file("root/plain/file");
  file("root/plain/folder/file");
  file("root/file");
  file("outside/file");
  file("outside/folder/file");
  file("outside/folder/inner/file");
}

ZooWorld::~ZooWorld() {
  others_.clear();
  for (void* byte : mapped_) munmap(byte, 1);
  while (!mountPoints_.empty()) {
    umount2(mountPoints_.back().c_str(), MNT_DETACH);
    mountPoints_.pop_back();
  }
}

std::string ZooWorld::makeRoomFor(const std::string& name) const {
  std::string place = path(name);
  fs::create_directories(fs::path(place).parent_path());
  return place;
}

void ZooWorld::file(const std::string& name, const std::string& content) {
  std::ofstream file(makeRoomFor(name), std::ios::binary);
  if (!(file << content).flush()) throw std::runtime_error("cannot write " + name);
}

void ZooWorld::link(const std::string& name, const std::string& target) {
  fs::create_symlink(target, makeRoomFor(name));
}

void ZooWorld::hardLink(const std::string& name, const std::string& existing) {
  fs::create_hard_link(path(existing), makeRoomFor(name));
}

void ZooWorld::pipe(const std::string& name) {
  succeed(mkfifo(makeRoomFor(name).c_str(), 0600), name);
}

void ZooWorld::socket(const std::string& name) {
  const std::string place = makeRoomFor(name);
  const Descriptor descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  place.copy(address.sun_path, sizeof address.sun_path - 1);
  succeed(bind(descriptor.get(), reinterpret_cast<sockaddr*>(&address), sizeof address), name);
}

void ZooWorld::permissions(const std::string& name, unsigned mode) {
  succeed(chmod(path(name).c_str(), mode), name);
}

void ZooWorld::deepFolders(const std::string& name, const std::string& each, int levels) {
  folder(name);
  Descriptor level(open(path(name).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  for (int made = 0; made < levels; ++made) {
    succeed(mkdirat(level.get(), each.c_str(), 0700), each);
    level = Descriptor(openat(level.get(), each.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    succeed(mknodat(level.get(), "f", S_IFREG | 0600, 0), "f");
  }
}

void ZooWorld::mount(const std::string& source, const std::string& name, const char* type,
                     unsigned long flags, const char* options) {
  if (!mounts_) mounts_.emplace();
  if (!mounts_->whyNot().empty()) throw CannotBuild(mounts_->whyNot());
  if (::mount(source.c_str(), path(name).c_str(), type, flags, options) != 0) {
    throw CannotBuild("this system does not mount it: " + std::generic_category().message(errno));
  }
  mountPoints_.push_back(path(name));
}

void ZooWorld::mountVolume(const std::string& name) {
  folder(name);
  mount("none", name, "tmpfs", 0);
}

void ZooWorld::mountAgain(const std::string& existing, const std::string& name) {
  if (fs::is_directory(path(existing))) {
    folder(name);
  } else {
    file(name, "");
  }
  mount(path(existing), name, nullptr, MS_BIND);
}

void ZooWorld::mountDevice(const std::string& device, const std::string& name) {
  file(name, "");
  mount(device, name, nullptr, MS_BIND);
}

void ZooWorld::makeReadOnly(const std::string& mounted) {
  if (::mount(nullptr, path(mounted).c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr)) {
    throw CannotBuild("this system does not make a mount read-only");
  }
}

void ZooWorld::mountOver(const std::string& lower, const std::string& upper,
                         const std::string& name) {
  folder("work");
  folder(upper);
  folder(name);
  const std::string options =
      "userxattr,lowerdir=" + lower + ",upperdir=" + path(upper) + ",workdir=" + path("work");
  mount("none", name, "overlay", 0, options.c_str());
}

void ZooWorld::hold(const std::string& name) {
  held_.emplace_back(open(path(name).c_str(), O_RDONLY | O_CLOEXEC));
  succeed(held_.back().get(), name);
}

void ZooWorld::map(const std::string& name) {
  const Descriptor file(open(path(name).c_str(), O_RDONLY | O_CLOEXEC));
  void* byte = mmap(nullptr, 1, PROT_READ, MAP_PRIVATE, file.get(), 0);
  if (byte == MAP_FAILED) throw std::runtime_error("cannot map " + name);
  mapped_.push_back(byte);
}

void ZooWorld::meetOthers() {
  for (const auto& body : bodies_) {
    if (others_.emplace_back(body).hearLine().empty()) throw CannotBuild("the other did not begin");
  }
}

void ZooWorld::endOthers() {
  others_.clear();
  if (atTheEnd_) std::exchange(atTheEnd_, nullptr)();
}

bool swapNames(int folder, const std::string& one, const std::string& other) {
  return renameat2(folder, one.c_str(), folder, other.c_str(), RENAME_EXCHANGE) == 0;
}

FirstErasure::FirstErasure(const std::string& folder) : events_(inotify_init1(IN_CLOEXEC)) {
  succeed(inotify_add_watch(events_.get(), folder.c_str(), IN_DELETE), folder);
}

void FirstErasure::wait() const {
  alignas(inotify_event) std::array<char, 4096> event;
  succeed(static_cast<int>(read(events_.get(), event.data(), event.size())), "wait for an event");
}

}  // namespace zelvane::test
