#include "platform/linux/linux_browser_desktop.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/descriptor.h"
#include "platform/linux/folder_entries.h"
#include "platform/linux/open_files_snapshot.h"
#include "platform/linux/private_folder.h"
#include "platform/linux/system_error.h"
#include "platform/shared/browsers/browser.h"

namespace zelvane::platform {
namespace {

std::string realPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                         &std::free);
  return real == nullptr ? std::string() : real.get();
}

bool holds(const std::string& folder, const std::string& inner) {
  return folder == "/" || inner == folder || inner.starts_with(folder + "/");
}

bool isLockedByFirefox(const std::string& profile) {
  const Descriptor lock(
      open((profile + "/.parentlock").c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct flock asked = {};
  asked.l_type = F_WRLCK;
  asked.l_whence = SEEK_SET;
  return lock.isOpen() && fcntl(lock.get(), F_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
}

std::string linkTarget(const std::string& path) {
  std::string target(PATH_MAX, '\0');
  const ssize_t length = readlink(path.c_str(), target.data(), target.size());
  target.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
  return target;
}

// A home that several machines share may have a browser of another one at work in it. One of this
// machine's is known by its open files, because its number may have passed to another process.
bool isLockedElsewhere(const std::string& root) {
  const std::string owner = linkTarget(root + "/SingletonLock");
  const std::size_t dash = owner.rfind('-');
  if (dash == std::string::npos) return false;
  std::string host(HOST_NAME_MAX + 1, '\0');
  gethostname(host.data(), host.size());
  host.resize(host.find('\0'));
  return owner.substr(0, dash) != host;
}

// Whether a file that lies in the folder itself is open. One that cannot be looked into counts.
bool isAnyIn(const OpenFilesSnapshot& inUse, const std::string& folder) {
  const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!opened.isOpen()) return true;
  bool found = false;
  FolderReader().read(opened.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) {
      if (found || entry.kind != EntryKind::file) continue;
      const auto facts = factsOf(opened.get(), std::string(entry.name));
      found = facts && inUse.contains(facts->identity);
    }
  });
  return found;
}

void renameBeside(const std::string& from, const std::string& to, unsigned how) {
  const std::string parent = from.substr(0, from.rfind('/'));
  const Descriptor folder(open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  const std::string a = from.substr(parent.size() + 1);
  const std::string b = to.substr(parent.size() + 1);
  if (!folder.isOpen() || renameat2(folder.get(), a.c_str(), folder.get(), b.c_str(), how) != 0 ||
      fsync(folder.get()) != 0) {
    throwSystemError();
  }
}

}  // namespace

LinuxBrowserDesktop::LinuxBrowserDesktop(const Environment& environment)
    : folders_{{"home", environment.home},
               {"config", environment.configHome},
               {"cache", environment.cacheHome}} {}

std::optional<std::string> LinuxBrowserDesktop::ownFolder(const std::string& path) const {
  struct stat facts = {};
  const bool isOwn =
      lstat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode) && facts.st_uid == geteuid();
  if (!isOwn) return std::nullopt;
  std::string real = realPath(path);
  if (real.empty() || holds(real, realPath(folders_.at("home")))) return std::nullopt;
  return real;
}

bool LinuxBrowserDesktop::isOpen(const Profile& profile) const {
  const bool isLocked = profile.family == Family::firefox ? isLockedByFirefox(profile.folder)
                                                          : isLockedElsewhere(profile.root);
  if (isLocked) return true;
  const OpenFilesSnapshot inUse;
  if (isAnyIn(inUse, profile.folder)) return true;
  if (profile.family == Family::firefox) return false;
  // One process of Chromium's serves all profiles, which share what lies beside them.
  const std::vector<std::string> names = namesIn(profile.root);
  return isAnyIn(inUse, profile.root) || std::ranges::any_of(names, [&](const std::string& name) {
           const std::string path = profile.root + "/" + name;
           const bool isLookedInto =
               kindOf(path) == PathKind::folder && access(path.c_str(), R_OK | X_OK) == 0;
           return isLookedInto && isAnyIn(inUse, path);
         });
}

PathKind LinuxBrowserDesktop::kindOf(const std::string& path) const {
  struct stat facts = {};
  if (lstat(path.c_str(), &facts) != 0) {
    return errno == ENOENT || errno == ENOTDIR ? PathKind::nothing : PathKind::other;
  }
  if (S_ISREG(facts.st_mode)) return PathKind::file;
  return S_ISDIR(facts.st_mode) ? PathKind::folder : PathKind::other;
}

std::vector<std::string> LinuxBrowserDesktop::namesIn(const std::string& folder) const {
  std::vector<std::string> names;
  const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!opened.isOpen()) return names;
  FolderReader().read(opened.get(), [&](std::span<const Entry> piece) {
    for (const Entry& entry : piece) names.emplace_back(entry.name);
  });
  return names;
}

void LinuxBrowserDesktop::putInPlace(const std::string& fresh, const std::string& path,
                                     const std::string&) const {
  renameBeside(fresh, path, RENAME_EXCHANGE);
}

void LinuxBrowserDesktop::rename(const std::string& from, const std::string& to) const {
  renameBeside(from, to, RENAME_NOREPLACE);
}

void LinuxBrowserDesktop::provideFolder(const std::string& path) const { makePrivateFolder(path); }

}  // namespace zelvane::platform
