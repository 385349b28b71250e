#include "platform/windows/windows_folder_tree.h"

#include <span>
#include <utility>

#include "platform/event_pump.h"
#include "platform/windows/open_within.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

bool isHidden(DWORD attributes) {
  return (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

void add(const Entry& entry, bool listsHiddenFiles, FolderListing& listing) {
  switch (entry.facts.kind) {
    case EntryKind::folder:
    case EntryKind::place:
      listing.subfolders.add(plainText(entry.name));
      break;
    case EntryKind::file:
    case EntryKind::link:
      if (listsHiddenFiles || !isHidden(entry.facts.attributes)) {
        listing.files.add(plainText(entry.name));
      }
      break;
    case EntryKind::other:
      break;
  }
}

class WindowsOpenFolder : public OpenFolder {
 public:
  WindowsOpenFolder(std::unique_ptr<HeldFolder> folder, bool listsHiddenFiles)
      : folder_(std::move(folder)), listsHiddenFiles_(listsHiddenFiles) {}

  FolderListing list(EventPump& pump) override {
    FolderListing listing;
    folder_->read([&](std::span<const Entry> piece) {
      for (const Entry& entry : piece) add(entry, listsHiddenFiles_, listing);
      pump.doEvents();
    });
    return listing;
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    return std::make_unique<WindowsOpenFolder>(folder_->openSubfolder(name), listsHiddenFiles_);
  }

  void removeFile(const std::string& name) override { folder_->removeFile(name); }
  void removeFolder(const std::string& name) override { folder_->removeFolder(name); }

 private:
  std::unique_ptr<HeldFolder> folder_;
  bool listsHiddenFiles_;
};

}  // namespace

HeldFolder::Options WindowsFolderTree::usualWay() { return {.comparePaths = followsUnixLinks()}; }

std::unique_ptr<OpenFolder> WindowsFolderTree::openRoot(const std::string& path) {
  return std::make_unique<WindowsOpenFolder>(HeldFolder::openRoot(path, options_.way),
                                             options_.listsHiddenFiles);
}

}  // namespace zelvane::platform
