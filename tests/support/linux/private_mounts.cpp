#include "tests/support/linux/private_mounts.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <sched.h>
#include <sys/mount.h>

namespace zelvane::test {

PrivateMounts::PrivateMounts() {
  if (unshare(CLONE_NEWNS) != 0 ||
      ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
    whyNot_ =
        "this process may not mount; it may inside \"unshare --user --map-root-user --mount\"";
  }
}

PrivateMounts::~PrivateMounts() {
  while (!places_.empty()) {
    umount2(places_.back().c_str(), MNT_DETACH);
    places_.pop_back();
  }
}

void PrivateMounts::mountVolume(const std::string& place) { mount("none", place, "tmpfs", 0); }

void PrivateMounts::mountAgain(const std::string& folder, const std::string& place) {
  mount(folder, place, nullptr, MS_BIND);
}

void PrivateMounts::mount(const std::string& source, const std::string& place, const char* type,
                          unsigned long flags) {
  std::filesystem::create_directories(place);
  if (::mount(source.c_str(), place.c_str(), type, flags, nullptr) != 0) {
    throw std::system_error(errno, std::generic_category(), "mount " + place);
  }
  places_.push_back(place);
}

}  // namespace zelvane::test
