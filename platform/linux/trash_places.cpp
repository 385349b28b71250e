#include "platform/linux/trash_places.h"

#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelvane::platform {
namespace {

constexpr int kAsWayPoint = O_PATH | O_DIRECTORY | O_CLOEXEC;

Descriptor openOwn(const Descriptor& folder, const std::string& name) {
  Descriptor trash(
      openat(folder.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat status {};
  if (!trash.isOpen() || fstat(trash.get(), &status) != 0 || status.st_uid != geteuid()) return {};
  return trash;
}

Descriptor openShared(const Descriptor& volume, const std::string& user) {
  const Descriptor shared(openat(volume.get(), ".Trash", kAsWayPoint | O_NOFOLLOW));
  struct stat status {};
  if (!shared.isOpen() || fstat(shared.get(), &status) != 0 || (status.st_mode & S_ISVTX) == 0) {
    return {};
  }
  return openOwn(shared, user);
}

}  // namespace

std::vector<Descriptor> openTrashPlaces(const std::string& dataHome,
                                        const std::vector<std::string>& volumes) {
  std::vector<Descriptor> places;
  const auto add = [&places](Descriptor place) {
    if (place.isOpen()) places.push_back(std::move(place));
  };
  const std::string user = std::to_string(geteuid());
  add(openOwn(Descriptor(open(dataHome.c_str(), kAsWayPoint)), "Trash"));
  for (const std::string& path : volumes) {
    const Descriptor volume(open(path.c_str(), kAsWayPoint));
    add(openShared(volume, user));
    add(openOwn(volume, ".Trash-" + user));
  }
  return places;
}

}  // namespace zelvane::platform
