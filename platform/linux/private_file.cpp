#include "platform/linux/private_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/folder_lock.h"
#include "platform/linux/linux_pending_file.h"
#include "platform/linux/private_folder.h"
#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

// Nothing where there is no such folder.
std::optional<Descriptor> openIfThere(const std::string& folder) {
  try {
    return openPrivateFolder(folder);
  } catch (const Error& error) {
    if (error.number() == ErrorNumber::pathNotFound) return std::nullopt;
    throw;
  }
}

// Whether anything at all has that name, a dangling link included.
bool isTaken(const Descriptor& folder, const std::string& name) {
  struct stat status {};
  return fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

// False where the new name is taken.
bool renameWithoutReplacing(const Descriptor& folder, const std::string& from,
                            const std::string& to) {
  if (renameat2(folder.get(), from.c_str(), folder.get(), to.c_str(), RENAME_NOREPLACE) == 0) {
    return true;
  }
  if (errno == EEXIST) return false;
  if (errno != EINVAL && errno != ENOSYS) throwSystemError();
  // A file system that cannot do both in one step. The folder is ours alone, and locked.
  if (isTaken(folder, to)) return false;
  if (renameat(folder.get(), from.c_str(), folder.get(), to.c_str()) != 0) throwSystemError();
  return true;
}

// Does it; a failure's text begins with what it stopped.
template <typename Deed>
auto naming(const std::string& what, Deed deed) {
  try {
    return deed();
  } catch (const Error& error) {
    throw Error(error.number(), what + ": " + error.text());
  }
}

}  // namespace

PrivateFile::PrivateFile(std::string folder, std::string name)
    : folder_(std::move(folder)), name_(std::move(name)) {}

std::optional<PrivateFile::Content> PrivateFile::contentIn(const Descriptor& folder) const {
  const Descriptor file(openat(folder.get(), name_.c_str(),
                               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.isOpen()) {
    if (errno == ENOENT) return std::nullopt;
    if (errno == ELOOP) {
      throw Error(ErrorNumber::accessError, "\"" + path() + "\" is a link, which is not followed.");
    }
    throw Error(errorFor(errno).number(), "\"" + path() + "\" cannot be opened.");
  }
  struct stat status {};
  if (fstat(file.get(), &status) != 0) throwSystemError();
  if (!S_ISREG(status.st_mode)) {
    throw Error(ErrorNumber::accessError, "\"" + path() + "\" is not a file.");
  }
  Content content;
  while (content.text.size() <= kLimit) {
    constexpr std::size_t kChunk = std::size_t{64} * 1024;
    const std::size_t before = content.text.size();
    content.text.resize(before + kChunk);
    const ssize_t count = ::read(file.get(), content.text.data() + before, kChunk);
    content.text.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count == 0) return content;
    if (count < 0 && errno != EINTR) {
      throw Error(errorFor(errno).number(), "\"" + path() + "\" cannot be read.");
    }
  }
  return Content{.text = {}, .tooBig = true};
}

std::optional<PrivateFile::Content> PrivateFile::content() const {
  const auto folder = openIfThere(folder_);
  if (!folder) return std::nullopt;
  return contentIn(*folder);
}

std::optional<std::string> PrivateFile::whole(std::optional<Content> content) const {
  if (!content) return std::nullopt;
  if (content->tooBig) {
    throw Error(ErrorNumber::accessError, "\"" + path() + "\" is larger than 16 MiB.");
  }
  return std::move(content->text);
}

std::optional<std::string> PrivateFile::read() const { return whole(content()); }

void PrivateFile::update(const Change& change) {
  Descriptor folder = makePrivateFolder(folder_);
  const std::string refused = "\"" + path() + "\" cannot be written";
  const FolderLock lock = naming(refused, [&] { return FolderLock(folder); });
  const auto text = change(whole(contentIn(folder)));
  if (!text) return;
  if (text->size() > kLimit) {
    throw Error(ErrorNumber::accessError, "\"" + path() + "\" would be larger than 16 MiB.");
  }
  naming(refused, [&] {
    LinuxPendingFile::sweepAwayWhatKillsLeft(folder);  // under the lock nobody is at work on one
    LinuxPendingFile file(std::move(folder), name_);
    file.write(*text);
    file.publish();
  });
}

std::optional<std::string> PrivateFile::setAsideUnless(
    const std::function<bool(const std::string&)>& isUnderstood) {
  const auto isFine = [&](const std::optional<Content>& content) {
    return !content || (!content->tooBig && isUnderstood(content->text));
  };
  if (isFine(content())) return std::nullopt;
  const Descriptor folder = openPrivateFolder(folder_);
  const std::string refused =
      "\"" + path() + "\" cannot be understood, and not be given another name";
  const FolderLock lock = naming(refused, [&] { return FolderLock(folder); });
  // Asked again, because another process may have set it aside meanwhile.
  if (isFine(contentIn(folder))) return std::nullopt;
  return folder_ + "/" + naming(refused, [&] { return renameToFreeName(folder); });
}

std::string PrivateFile::renameToFreeName(const Descriptor& folder) const {
  for (int number = 1;; ++number) {
    std::string name = name_ + ".set-aside-" + std::to_string(number);
    if (renameWithoutReplacing(folder, name_, name)) {
      fsync(folder.get());
      return name;
    }
  }
}

}  // namespace zelvane::platform
