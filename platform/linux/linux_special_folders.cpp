#include "platform/linux/linux_special_folders.h"

#include <algorithm>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/error.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/file_identity.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/user_folders.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestList = std::uint64_t{1} << 20U;

std::optional<FileIdentity> folderAt(int start, const std::string& path) {
  struct stat status {};
  if (fstatat(start, path.c_str(), &status, 0) != 0 || !S_ISDIR(status.st_mode)) {
    return std::nullopt;
  }
  return FileIdentity{status.st_dev, status.st_ino};
}

// The folder at `path`, or the nearest one above it that exists.
Descriptor openNearest(std::string path) {
  for (;;) {
    Descriptor folder(open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen() || path == "/") return folder;
    path.resize(std::max<std::size_t>(path.rfind('/'), 1));
  }
}

// Compared as folders and not as texts: a link, a doubled separator or a second mount may give the
// home another name.
bool isOrHolds(const FileIdentity& folder, const std::string& inner) {
  Descriptor level = openNearest(inner);
  for (auto here = folderAt(level.get(), "."); here;) {
    if (*here == folder) return true;
    level = Descriptor(openat(level.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    const std::optional<FileIdentity> above = folderAt(level.get(), ".");
    if (above == here) return false;  // the top, which is its own parent
    here = above;
  }
  return false;
}

}  // namespace

LinuxSpecialFolders::LinuxSpecialFolders(Environment environment, std::string usualTemporary)
    : environment_(std::move(environment)), usualTemporary_(std::move(usualTemporary)) {}

std::optional<std::string> LinuxSpecialFolders::path(SpecialFolder folder) const {
  return folder == SpecialFolder::personal ? documents() : std::nullopt;
}

std::optional<std::string> LinuxSpecialFolders::temporaryPath() const {
  for (std::string folder : {environment_.tmpDir, usualTemporary_}) {
    while (folder.ends_with('/')) folder.pop_back();
    if (isUsable(folder)) return folder + "/";
  }
  return std::nullopt;
}

std::optional<std::string> LinuxSpecialFolders::documents() const {
  std::string folder = environment_.home + "/Documents";
  try {
    const std::string list =
        LinuxFiles().readWhole(environment_.configHome + "/user-dirs.dirs", kLongestList);
    folder = userFolder(list, "XDG_DOCUMENTS_DIR", environment_.home).value_or(folder);
  } catch (const Error& error) {
    // No list: the usual place. One that is there and cannot be read may name any folder.
    if (error.number() != ErrorNumber::fileNotFound) return std::nullopt;
  }
  return isUsable(folder) ? std::optional(folder) : std::nullopt;
}

// The settings of a desktop say "no such folder" by naming the home itself.
bool LinuxSpecialFolders::isUsable(const std::string& path) const {
  const std::optional<FileIdentity> folder = folderAt(AT_FDCWD, path);
  return folder && !isOrHolds(*folder, environment_.home);
}

}  // namespace zelvane::platform
