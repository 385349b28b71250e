#include "platform/linux/linux_folder_tree.h"

#include <optional>
#include <utility>

#include "platform/error.h"
#include "platform/linux/open_files_snapshot.h"

namespace zelvane::platform {
namespace {

bool isHidden(const std::string& name) { return name.starts_with('.'); }

bool isOrdinary(EntryKind kind) { return kind == EntryKind::file || kind == EntryKind::link; }

class LinuxOpenFolder : public OpenFolder {
 public:
  // A root, which owns what the whole erasure knows.
  LinuxOpenFolder(std::unique_ptr<GuardedFolder> folder,
                  std::unique_ptr<const OpenFilesSnapshot> inUse)
      : ownInUse_(std::move(inUse)), inUse_(*ownInUse_), folder_(std::move(folder)) {}

  LinuxOpenFolder(std::unique_ptr<GuardedFolder> folder, const OpenFilesSnapshot& inUse)
      : inUse_(inUse), folder_(std::move(folder)) {}

  FolderListing list() override {
    FolderListing listing;
    for (Entry& entry : folder_->entries()) {
      if (entry.kind == EntryKind::folder) {
        listing.subfolders.push_back(std::move(entry.name));
      } else if (isOrdinary(entry.kind) && !isHidden(entry.name)) {
        listing.files.push_back(std::move(entry.name));
      }
    }
    return listing;
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    return std::make_unique<LinuxOpenFolder>(folder_->openSubfolder(name), inUse_);
  }

  void removeFile(const std::string& name) override {
    const std::optional<EntryFacts> facts = folder_->facts(name);
    if (!facts) return;
    if (!isOrdinary(facts->kind)) throw Error(ErrorNumber::accessError);
    // Between this look and the deed the name may come to mean another file. What is deleted then
    // is still no more than a name in this folder.
    if (inUse_.contains(facts->identity)) throw Error(ErrorNumber::permissionDenied);
    folder_->removeFile(name);
  }

  void removeFolder(const std::string& name) override { folder_->removeFolder(name); }

 private:
  std::unique_ptr<const OpenFilesSnapshot> ownInUse_;
  const OpenFilesSnapshot& inUse_;
  std::unique_ptr<GuardedFolder> folder_;
};

}  // namespace

std::unique_ptr<OpenFolder> LinuxFolderTree::openRoot(const std::string& path) {
  std::unique_ptr<GuardedFolder> folder = GuardedFolder::openRoot(path, options_);
  return std::make_unique<LinuxOpenFolder>(std::move(folder),
                                           std::make_unique<const OpenFilesSnapshot>());
}

}  // namespace zelvane::platform
