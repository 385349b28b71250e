#include "platform/linux/guarded_folder.h"

#include <cassert>
#include <cerrno>
#include <charconv>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

#include "platform/linux/linux_files.h"
#include "platform/linux/system_error.h"

namespace zelvane::platform {
namespace {

constexpr int kOpenFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t kChange = S_IWUSR | S_IXUSR;
constexpr std::uint64_t kLongestFacts = 65536;

const char* singleName(const std::string& name) {
  if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos) {
    throw Error(ErrorNumber::accessError);
  }
  return kernelPath(name);
}

[[noreturn]] void throwForFolder() {
  throw errno == ENOENT ? Error(ErrorNumber::pathNotFound) : errorFor(errno);
}

int openBeneath(int folder, const char* name) {
  open_how how{};
  how.flags = kOpenFolder;
  how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_XDEV;
  return static_cast<int>(syscall(SYS_openat2, folder, name, &how, sizeof how));
}

// The number of the mount through which the descriptor was opened. A bind mount of the same volume
// has another one, although its device is the same.
std::uint64_t mountOf(int descriptor) {
  constexpr std::string_view kLabel = "mnt_id:\t";
  const std::string facts =
      LinuxFiles().readWhole("/proc/self/fdinfo/" + std::to_string(descriptor), kLongestFacts);
  const std::size_t label = facts.find(kLabel);
  std::uint64_t mount = 0;
  const char* begin = facts.data() + label + kLabel.size();
  if (label == std::string::npos ||
      std::from_chars(begin, facts.data() + facts.size(), mount).ec != std::errc()) {
    throw Error(ErrorNumber::accessError);
  }
  return mount;
}

}  // namespace

std::unique_ptr<GuardedFolder> GuardedFolder::openRoot(const std::string& path, Options options) {
  std::string_view bare = path;
  // With something behind its name the kernel would follow a link in spite of O_NOFOLLOW.
  while (bare.size() > 1 && (bare.ends_with('/') || bare.ends_with("/."))) bare.remove_suffix(1);
  if (bare == ".." || bare.ends_with("/..")) throw Error(ErrorNumber::accessError);
  const std::string name(bare);
  Descriptor root(open(kernelPath(name), kOpenFolder));
  if (!root.isOpen()) throwForFolder();
  return std::make_unique<GuardedFolder>(std::move(root), options);
}

GuardedFolder::GuardedFolder(Descriptor root, Options options)
    : ownedWalk_(std::make_unique<Walk>()), walk_(ownedWalk_.get()), folder_(std::move(root)) {
  walk_->options = options;
}

GuardedFolder::GuardedFolder(Descriptor folder, GuardedFolder& parent)
    : walk_(parent.walk_), parent_(&parent), folder_(std::move(folder)) {
  const std::optional<EntryFacts> facts = factsOf(folder_.get());
  if (!facts) throwSystemError();
  identity_ = facts->identity;
  parent.child_ = this;
  walk_->open.push_back(this);
}

GuardedFolder::~GuardedFolder() {
  // Destroyed out of order, say by an exception that unwinds a whole stack of folders: those below
  // go on without what is gone with this one.
  for (GuardedFolder* below = child_; below != nullptr; below = below->child_) {
    if (walk_ != nullptr) std::erase(walk_->open, below);
    below->walk_ = nullptr;
  }
  if (child_ != nullptr) child_->parent_ = nullptr;
  if (parent_ != nullptr) parent_->child_ = nullptr;
  if (walk_ != nullptr) {
    std::erase(walk_->open, this);
    if (parent_ != nullptr && folder_.isOpen()) parent_->openAgainThrough(folder_.get());
  }
  restorePermissions();
}

int GuardedFolder::descriptor() const {
  if (!folder_.isOpen()) throw Error(ErrorNumber::pathNotFound);
  return folder_.get();
}

void GuardedFolder::read(const FolderReader::Use& use) {
  const int folder = descriptor();
  assert(walk_ != nullptr);
  walk_->reader.read(folder, use);
}

std::int64_t GuardedFolder::fileSystem() const {
  struct statfs status {};
  if (fstatfs(descriptor(), &status) != 0) throwSystemError();
  return status.f_type;
}

EntryFacts GuardedFolder::facts() const {
  const std::optional<EntryFacts> facts = factsOf(descriptor());
  if (!facts) throwSystemError();
  return *facts;
}

std::optional<EntryFacts> GuardedFolder::facts(const std::string& name) {
  singleName(name);
  do {
    if (std::optional<EntryFacts> facts = factsOf(descriptor(), name)) return facts;
    if (errno == ENOENT) return std::nullopt;
  } while (errno == EACCES && liftPermissions());
  throwSystemError();
}

std::unique_ptr<GuardedFolder> GuardedFolder::openSubfolder(const std::string& name) {
  assert(child_ == nullptr && walk_ != nullptr);
  if (walk_->open.size() + 1 >= walk_->options.mostDescriptors) walk_->open.front()->closeForNow();
  Descriptor subfolder = openChecked(name);
  // No make_unique: the constructor is this class's own affair.
  return std::unique_ptr<GuardedFolder>(new GuardedFolder(std::move(subfolder), *this));
}

Descriptor GuardedFolder::openChecked(const std::string& name) {
  if (!walk_->options.askKernel) return openComparingMounts(name);
  do {
    Descriptor subfolder(openBeneath(descriptor(), singleName(name)));
    if (subfolder.isOpen()) return subfolder;
  } while (errno == EACCES && liftPermissions());
  // An old kernel does not know the call, a container may forbid it.
  if (errno != ENOSYS && errno != EPERM) throwForFolder();
  walk_->options.askKernel = false;
  return openComparingMounts(name);
}

Descriptor GuardedFolder::openComparingMounts(const std::string& name) {
  Descriptor subfolder;
  do {
    subfolder = Descriptor(openat(descriptor(), singleName(name), kOpenFolder));
  } while (!subfolder.isOpen() && errno == EACCES && liftPermissions());
  if (!subfolder.isOpen()) throwForFolder();
  if (!walk_->mount) walk_->mount = mountOf(descriptor());
  if (mountOf(subfolder.get()) != *walk_->mount) throw Error(ErrorNumber::accessError);
  return subfolder;
}

void GuardedFolder::closeForNow() {
  restorePermissions();
  folder_.close();
  std::erase(walk_->open, this);
}

void GuardedFolder::openAgainThrough(int subfolder) {
  if (folder_.isOpen()) return;
  Descriptor folder(openat(subfolder, "..", kOpenFolder));
  if (!folder.isOpen()) return;
  const std::optional<EntryFacts> facts = factsOf(folder.get());
  if (!facts || facts->identity != identity_) return;
  folder_ = std::move(folder);
  walk_->open.push_back(this);
}

void GuardedFolder::removeFile(const std::string& name) { remove(name, 0); }

void GuardedFolder::removeFolder(const std::string& name) { remove(name, AT_REMOVEDIR); }

void GuardedFolder::remove(const std::string& name, int flags) {
  do {
    if (unlinkat(descriptor(), singleName(name), flags) == 0 || errno == ENOENT) return;
  } while (errno == EACCES && liftPermissions());
  // Some file systems say "exists" of a folder that is not empty.
  throw errno == EEXIST ? Error(ErrorNumber::accessError) : errorFor(errno);
}

bool GuardedFolder::liftPermissions() {
  const std::optional<EntryFacts> facts = factsOf(descriptor());
  if (!facts || facts->owner != geteuid() || (facts->mode & kChange) == kChange ||
      fchmod(descriptor(), facts->mode | kChange) != 0) {
    errno = EACCES;
    return false;
  }
  modeBefore_ = facts->mode;
  return true;
}

void GuardedFolder::restorePermissions() {
  if (!modeBefore_) return;
  const std::optional<EntryFacts> facts = factsOf(folder_.get());
  // Changed by somebody else meanwhile: theirs is the last word. A failure leaves the folder open
  // to its owner alone.
  if (facts && facts->mode == (*modeBefore_ | kChange)) {
    static_cast<void>(fchmod(folder_.get(), *modeBefore_));
  }
  modeBefore_.reset();
}

}  // namespace zelvane::platform
