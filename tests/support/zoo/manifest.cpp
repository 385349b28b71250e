#include "tests/support/zoo/manifest.h"

#include <cerrno>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/descriptor.h"

namespace zelvane::test {

using platform::Descriptor;

namespace {

constexpr int kOpenFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
// Opening a pipe would wait for a writer, so only ordinary files are opened, and never in earnest.
constexpr int kOpenFile = O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;

[[noreturn]] void fail(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

class Looker {
 public:
  // Fills `manifest` with what is below `folder`, whose path ends in a separator or is empty. The
  // folder is closed on the way down and found again through its subfolder, as nobody moves
  // anything meanwhile: a tree may have more levels than a process may have descriptors.
  void look(Descriptor& folder, const std::string& path) {
    for (const std::string& name : namesIn(folder)) {
      const std::string below = path + name;
      ManifestEntry& entry = manifest[below] = factsOf(folder, name, below);
      if (entry.isFile()) entry.content = contentOf(folder, name, entry.mode);
      if (S_ISLNK(entry.mode)) entry.content = targetOf(folder, name);
      if (entry.isFolder()) lookInto(folder, name, below, entry.mode);
    }
  }

  Manifest manifest;

 private:
  static std::vector<std::string> namesIn(const Descriptor& folder) {
    Descriptor again(openat(folder.get(), ".", kOpenFolder));
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(fdopendir(again.get()), closedir);
    if (!stream) fail("list a folder");
    static_cast<void>(again.release());
    std::vector<std::string> names;
    while (const dirent* entry = readdir(stream.get())) {
      const std::string_view name = entry->d_name;
      if (name != "." && name != "..") names.emplace_back(name);
    }
    return names;
  }

  static ManifestEntry factsOf(const Descriptor& folder, const std::string& name,
                               const std::string& path) {
    struct stat status {};
    if (fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) fail(path);
    ManifestEntry entry;
    entry.mode = status.st_mode;
    entry.owner = status.st_uid;
    entry.modified = std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
    entry.names = status.st_nlink;
    entry.identity = {status.st_dev, status.st_ino};
    return entry;
  }

  // Opens it, if need be with permissions that its owner lacks; those are back when this returns,
  // unless `keepOpen` says that they have to last.
  static Descriptor openAnyway(const Descriptor& folder, const std::string& name, int flags,
                               mode_t mode, mode_t needed, bool* lifted = nullptr) {
    const mode_t before = mode & 07777U;
    bool changed = false;
    if ((before & needed) != needed) {
      changed = fchmodat(folder.get(), name.c_str(), before | needed, 0) == 0;
    }
    Descriptor opened(openat(folder.get(), name.c_str(), flags));
    if (lifted != nullptr) {
      *lifted = changed;
    } else if (changed && fchmodat(folder.get(), name.c_str(), before, 0) != 0) {
      fail(name);
    }
    return opened;
  }

  std::string contentOf(const Descriptor& folder, const std::string& name, mode_t mode) {
    const Descriptor file = openAnyway(folder, name, kOpenFile, mode, S_IRUSR);
    if (!file.isOpen()) return {};
    std::string content;
    ssize_t count = 0;
    while ((count = read(file.get(), buffer_.data(), buffer_.size())) > 0) {
      content.append(buffer_.data(), static_cast<std::size_t>(count));
    }
    if (count < 0) fail(name);
    return content;
  }

  std::string targetOf(const Descriptor& folder, const std::string& name) {
    const ssize_t size = readlinkat(folder.get(), name.c_str(), buffer_.data(), buffer_.size());
    if (size < 0) fail(name);
    return {buffer_.data(), static_cast<std::size_t>(size)};
  }

  void lookInto(Descriptor& folder, const std::string& name, const std::string& path, mode_t mode) {
    bool lifted = false;
    Descriptor subfolder = openAnyway(folder, name, kOpenFolder, mode, S_IRWXU, &lifted);
    if (!subfolder.isOpen()) return;
    folder.close();
    look(subfolder, path + "/");
    folder = Descriptor(openat(subfolder.get(), "..", kOpenFolder));
    if (!folder.isOpen()) fail(path);
    if (lifted && fchmodat(folder.get(), name.c_str(), mode & 07777U, 0) != 0) fail(path);
  }

  std::vector<char> buffer_ = std::vector<char>(65536);  // not on the stack, which levels share
};

}  // namespace

bool ManifestEntry::isFolder() const { return S_ISDIR(mode); }

bool ManifestEntry::isFile() const { return S_ISREG(mode); }

Manifest manifestOf(const std::string& folder) {
  Descriptor opened(open(folder.c_str(), kOpenFolder));
  if (!opened.isOpen()) fail(folder);
  Looker looker;
  looker.look(opened, "");
  return std::move(looker.manifest);
}

}  // namespace zelvane::test
