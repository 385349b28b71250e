#include "platform/linux/linux_single_instance.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/private_folder.h"

namespace zelvane::platform {
namespace {

// The run-time folder belongs to the session: one in another state is somebody's mistake or trap,
// and not ours to mend.
bool isGoodRuntimeDir(const std::string& path) {
  struct stat status {};
  return !path.empty() && lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

Descriptor openLockFileIn(const std::string& path) {
  const Descriptor folder = makePrivateFolder(path);
  return Descriptor(openat(folder.get(), "instance.lock",
                           O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                           S_IRUSR | S_IWUSR));
}

}  // namespace

LinuxSingleInstance::LinuxSingleInstance(const Environment& environment)
    : folders_{environment.cacheHome + "/zelvane",
               environment.tmpDir + "/zelvane-" + std::to_string(geteuid())} {
  if (isGoodRuntimeDir(environment.runtimeDir)) {
    folders_.insert(folders_.begin(), environment.runtimeDir + "/zelvane");
  }
}

Descriptor LinuxSingleInstance::openLockFile() const {
  for (const std::string& folder : folders_) {
    try {
      Descriptor file = openLockFileIn(folder);
      if (file.isOpen()) return file;
    } catch (const Error&) {
      // The next one may do.
    }
  }
  return {};
}

bool LinuxSingleInstance::claim() {
  lock_ = openLockFile();
  if (!lock_.isOpen()) return true;
  return flock(lock_.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

}  // namespace zelvane::platform
