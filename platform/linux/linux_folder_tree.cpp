#include "platform/linux/linux_folder_tree.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include <linux/magic.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/event_pump.h"
#include "platform/linux/open_files_snapshot.h"
#include "platform/linux/temporary_rules.h"

namespace zelvane::platform {
namespace {

using std::chrono::milliseconds;

// File systems in whose folders each entry stands with the inode number that a look at the file
// gives. Others (overlays, most of those made by programs) write something else there.
constexpr auto kHonestFileSystems = std::to_array<std::int64_t>(
    {EXT4_SUPER_MAGIC, TMPFS_MAGIC, XFS_SUPER_MAGIC, BTRFS_SUPER_MAGIC, F2FS_SUPER_MAGIC});

bool isHidden(std::string_view name) { return name.starts_with('.'); }

bool isOrdinary(EntryKind kind) { return kind == EntryKind::file || kind == EntryKind::link; }

// What is common to the folders of one erasure.
struct Erasure {
  Erasure(const GuardedFolder& root, const LinuxFolderTree::Options& options, bool temporary)
      : listsHiddenFiles(options.listsHiddenFiles), isTemporary(temporary) {
    if (std::ranges::count(kHonestFileSystems, root.fileSystem()) > 0) {
      listingIsGood = options.listingIsGood;
    }
  }

  bool lists(const Entry& entry) const {
    return isOrdinary(entry.kind) && (listsHiddenFiles || !isHidden(entry.name));
  }

  OpenFilesSnapshot inUse;
  bool listsHiddenFiles;
  bool isTemporary;  // the folder of temporary files and what is below it
  milliseconds listingIsGood{0};
};

// Compared as folders: a link or a doubled separator may give it another name.
bool isTemporary(const SpecialFolders* folders, const FileIdentity& root) {
  const std::optional<std::string> path =
      folders == nullptr ? std::nullopt : folders->temporaryPath();
  struct stat status {};
  return path && stat(path->c_str(), &status) == 0 &&
         root == FileIdentity{status.st_dev, status.st_ino};
}

// By the clock that the kernel updates at its ticks, which costs nothing to read.
milliseconds now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
  return milliseconds(static_cast<std::int64_t>(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000);
}

class LinuxOpenFolder : public OpenFolder {
 public:
  // A root, which owns what the whole erasure knows.
  LinuxOpenFolder(std::unique_ptr<GuardedFolder> folder, std::unique_ptr<const Erasure> erasure)
      : ownErasure_(std::move(erasure)), erasure_(*ownErasure_), folder_(std::move(folder)) {}

  LinuxOpenFolder(std::unique_ptr<GuardedFolder> folder, const Erasure& erasure)
      : erasure_(erasure), folder_(std::move(folder)) {}

  FolderListing list(EventPump& pump) override {
    FolderListing listing;
    bool allFree = true;
    bool isMeetingPlace = false;
    const milliseconds begun = now();  // whatever the waiting events take counts as well
    folder_->read([&](std::span<const Entry> piece) {
      for (const Entry& entry : piece) {
        if (entry.kind == EntryKind::folder) {
          listing.subfolders.add(entry.name);
          continue;
        }
        isMeetingPlace = isMeetingPlace || entry.kind == EntryKind::other;
        allFree = allFree && isOrdinary(entry.kind) && !erasure_.inUse.containsInode(entry.inode);
        if (erasure_.lists(entry)) listing.files.add(entry.name);
      }
      pump.doEvents();
    });
    isMeetingPlace_ = isMeetingPlace;
    freeUntil_ = allFree ? begun + erasure_.listingIsGood : milliseconds::min();
    return listing;
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    if (!erasure_.isTemporary) return open(name);
    refuseWhatIsOfOthers(name);
    std::unique_ptr<LinuxOpenFolder> subfolder = open(name);
    if (subfolder->folder_->facts().owner != geteuid()) throw Error(ErrorNumber::permissionDenied);
    return subfolder;
  }

  void removeFile(const std::string& name) override {
    if (erasure_.isTemporary) refuseWhatIsOfOthers(name);
    if (now() >= freeUntil_ && !mayBeDeleted(name)) return;
    folder_->removeFile(name);
  }

  void removeFolder(const std::string& name) override {
    if (erasure_.isTemporary) refuseWhatIsOfOthers(name);
    folder_->removeFolder(name);
  }

 private:
  std::unique_ptr<LinuxOpenFolder> open(const std::string& name) {
    return std::make_unique<LinuxOpenFolder>(folder_->openSubfolder(name), erasure_);
  }

  // In the folder of temporary files.
  void refuseWhatIsOfOthers(const std::string& name) {
    const std::optional<EntryFacts> facts = folder_->facts(name);
    if (!facts) return;
    const bool isRoot = ownErasure_ != nullptr;
    if (facts->owner != geteuid() || facts->kind == EntryKind::other ||
        (isRoot ? isOfAService(name, facts->kind) : isMeetingPlace())) {
      throw Error(ErrorNumber::permissionDenied);
    }
  }

  // As the last listing has it.
  bool isMeetingPlace() {
    if (!isMeetingPlace_) {
      isMeetingPlace_ = false;
      folder_->read([this](std::span<const Entry> piece) {
        if (std::ranges::count(piece, EntryKind::other, &Entry::kind) > 0) isMeetingPlace_ = true;
      });
    }
    return *isMeetingPlace_;
  }

  // False where it is gone already. Between this look and the deed the name may come to mean
  // another file. What is deleted then is still no more than a name in this folder.
  bool mayBeDeleted(const std::string& name) {
    const std::optional<EntryFacts> facts = folder_->facts(name);
    if (!facts) return false;
    if (!isOrdinary(facts->kind)) throw Error(ErrorNumber::accessError);
    if (erasure_.inUse.contains(facts->identity)) throw Error(ErrorNumber::permissionDenied);
    return true;
  }

  std::unique_ptr<const Erasure> ownErasure_;
  const Erasure& erasure_;
  std::unique_ptr<GuardedFolder> folder_;
  // A listing tells of nearly every folder that it holds free ordinary files alone. For a moment
  // that is as good as a look at each file, which would take a tenth of the erasure's time.
  milliseconds freeUntil_ = milliseconds::min();
  std::optional<bool> isMeetingPlace_;  // whether there is a socket, a pipe or a device in it
};

}  // namespace

std::unique_ptr<OpenFolder> LinuxFolderTree::openRoot(const std::string& path) {
  std::unique_ptr<GuardedFolder> folder = GuardedFolder::openRoot(path, options_.way);
  auto erasure = std::make_unique<const Erasure>(*folder, options_,
                                                 isTemporary(folders_, folder->facts().identity));
  return std::make_unique<LinuxOpenFolder>(std::move(folder), std::move(erasure));
}

}  // namespace zelvane::platform
