#include "platform/linux/folder_lock.h"

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/linux/system_error.h"

namespace zelvane::platform {

FolderLock::FolderLock(const Descriptor& folder, std::chrono::milliseconds patience)
    : file_(openat(folder.get(), ".lock",
                   O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                   S_IRUSR | S_IWUSR)) {
  if (!file_.isOpen()) throwSystemError();
  constexpr std::chrono::milliseconds kPause(2);
  const auto end = std::chrono::steady_clock::now() + patience;
  while (flock(file_.get(), LOCK_EX | LOCK_NB) != 0) {
    // A file system without locks: rather an unguarded change than none.
    if (errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP) return;
    if (errno != EWOULDBLOCK && errno != EINTR) throwSystemError();
    if (std::chrono::steady_clock::now() >= end) {
      throw Error(ErrorNumber::permissionDenied, "Another process holds the settings locked.");
    }
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace zelvane::platform
