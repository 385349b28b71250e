#include "platform/linux/linux_pending_file.h"

#include <cassert>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>

#include "platform/linux/folder_entries.h"
#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

constexpr mode_t kPrivate = S_IRUSR | S_IWUSR;
constexpr std::string_view kHiddenPrefix = ".zelvane-";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kRandomBytes = 16;

// A name that nobody can guess and occupy beforehand.
std::string randomHiddenName() {
  unsigned char random[kRandomBytes];
  if (getrandom(random, sizeof random, 0) != static_cast<ssize_t>(sizeof random)) {
    throwSystemError();
  }
  std::string name(kHiddenPrefix);
  for (const unsigned char byte : random) {
    name += kDigits[byte >> 4U];
    name += kDigits[byte & 15U];
  }
  return name;
}

void syncToDisk(int descriptor) {
  if (fsync(descriptor) == 0) return;
  // File systems that cannot be told to sync say so in one of these ways; there is nothing to wait
  // for then.
  if (errno == EINVAL || errno == EROFS || errno == ENOTSUP) return;
  throwSystemError();
}

bool hasNoUnnamedFiles(int systemNumber) {
  return systemNumber == EOPNOTSUPP || systemNumber == EISDIR || systemNumber == EINVAL;
}

}  // namespace

bool LinuxPendingFile::isHiddenName(std::string_view name) {
  if (!name.starts_with(kHiddenPrefix)) return false;
  name.remove_prefix(kHiddenPrefix.size());
  return name.size() == 2 * kRandomBytes &&
         name.find_first_not_of(kDigits) == std::string_view::npos;
}

void LinuxPendingFile::sweepAwayWhatKillsLeft(const Descriptor& folder) {
  FolderReader().read(folder.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      if (isHiddenName(entry.name)) unlinkat(folder.get(), entry.name.data(), 0);
    }
  });
}

LinuxPendingFile::LinuxPendingFile(Descriptor folder, std::string name, Kind kind)
    : folder_(std::move(folder)), name_(std::move(name)) {
  if (kind == Kind::unnamed) {
    file_ = Descriptor(openat(folder_.get(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, kPrivate));
    if (!file_.isOpen() && !hasNoUnnamedFiles(errno)) throwSystemError();
  }
  if (!file_.isOpen()) createHidden();
}

LinuxPendingFile::~LinuxPendingFile() {
  if (!published_) removeHidden();
}

void LinuxPendingFile::createHidden() {
  std::string name = randomHiddenName();
  file_ = Descriptor(openat(folder_.get(), name.c_str(),
                            O_CREAT | O_EXCL | O_NOFOLLOW | O_RDWR | O_CLOEXEC, kPrivate));
  if (!file_.isOpen()) throwSystemError();
  hiddenName_ = std::move(name);
}

void LinuxPendingFile::setPermissions(mode_t permissions) {
  if (fchmod(file_.get(), permissions) != 0) throwSystemError();
}

void LinuxPendingFile::write(std::string_view bytes) {
  assert(!published_);
  while (!bytes.empty()) {
    const ssize_t written = ::write(file_.get(), bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      throw errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? Error(ErrorNumber::diskFull)
                                                                 : Error(ErrorNumber::deviceIo);
    }
  }
}

void LinuxPendingFile::publish() {
  assert(!published_);
  syncToDisk(file_.get());
  if (!hiddenName_.empty() || !linkAs(name_)) {
    replaceTarget();
  }
  published_ = true;
  syncToDisk(folder_.get());
}

void LinuxPendingFile::replaceTarget() {
  // A link never replaces anything, so the file gets a name first and is then moved over the
  // target.
  if (hiddenName_.empty()) {
    std::string name = randomHiddenName();
    if (!linkAs(name)) throw Error(ErrorNumber::fileExists);
    hiddenName_ = std::move(name);
  }
  if (renameat(folder_.get(), hiddenName_.c_str(), folder_.get(), name_.c_str()) != 0) {
    throwSystemError();
  }
}

bool LinuxPendingFile::linkAs(const std::string& name) const {
  const std::string self = "/proc/self/fd/" + std::to_string(file_.get());
  if (linkat(AT_FDCWD, self.c_str(), folder_.get(), name.c_str(), AT_SYMLINK_FOLLOW) == 0) {
    return true;
  }
  // Without /proc the file can be named through its descriptor, which takes a newer kernel.
  if (errno == ENOENT && linkat(file_.get(), "", folder_.get(), name.c_str(), AT_EMPTY_PATH) == 0) {
    return true;
  }
  if (errno == EEXIST) return false;
  throwSystemError();
}

void LinuxPendingFile::removeHidden() {
  // Nothing can be done where this fails: the name is random and ours, the content private.
  if (!hiddenName_.empty()) unlinkat(folder_.get(), hiddenName_.c_str(), 0);
}

}  // namespace zelvane::platform
