#include "platform/memory/memory_folder_tree.h"

#include <algorithm>
#include <utility>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

using Kind = MemoryNode::Kind;

class MemoryOpenFolder : public OpenFolder {
 public:
  MemoryOpenFolder(MemoryFileSystem& fileSystem, MemoryNode& folder,
                   std::vector<const MemoryNode*> inUse)
      : fileSystem_(fileSystem), folder_(folder), inUse_(std::move(inUse)) {
    if (folder.folder.unreadable) throw Error(ErrorNumber::permissionDenied);
  }

  FolderListing list(EventPump&) override {
    if (!fileSystem_.contains(folder_)) throw Error(ErrorNumber::pathNotFound);
    if (folder_.folder.unlistable) throw Error(ErrorNumber::permissionDenied);
    FolderListing listing;
    for (const MemoryNode* node : folder_.children) {
      if (node->kind == Kind::folder) {
        listing.subfolders.add(node->name);
      } else if (node->kind != Kind::socket && !node->file.hidden) {
        listing.files.add(node->name);
      }
    }
    return listing;
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    MemoryNode* node = find(name);
    if (node == nullptr) throw Error(ErrorNumber::pathNotFound);
    if (node->kind != Kind::folder || node->folder.mountPoint) {
      throw Error(ErrorNumber::accessError);
    }
    return std::make_unique<MemoryOpenFolder>(fileSystem_, *node, inUse_);
  }

  void removeFile(const std::string& name) override {
    MemoryNode* node = find(name);
    if (node == nullptr) return;
    if (node->kind != Kind::file && node->kind != Kind::link) {
      throw Error(ErrorNumber::accessError);
    }
    if (folder_.folder.foreign || std::ranges::count(inUse_, node) > 0) {
      throw Error(ErrorNumber::permissionDenied);
    }
    fileSystem_.remove(*node);
  }

  void removeFolder(const std::string& name) override {
    MemoryNode* node = find(name);
    if (node == nullptr) return;
    if (node->kind != Kind::folder || !node->children.empty()) {
      throw Error(ErrorNumber::accessError);
    }
    if (folder_.folder.foreign || node->folder.mountPoint) {
      throw Error(ErrorNumber::permissionDenied);
    }
    fileSystem_.remove(*node);
  }

 private:
  MemoryNode* find(const std::string& name) const {
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos) {
      throw Error(ErrorNumber::accessError);
    }
    return fileSystem_.child(folder_, name);
  }

  MemoryFileSystem& fileSystem_;
  MemoryNode& folder_;
  std::vector<const MemoryNode*> inUse_;
};

}  // namespace

std::unique_ptr<OpenFolder> MemoryFolderTree::openRoot(const std::string& path) {
  MemoryNode* node = path.empty() ? nullptr : fileSystem_.find(path);
  if (node == nullptr) throw Error(ErrorNumber::pathNotFound);
  if (node->kind != Kind::folder) throw Error(ErrorNumber::accessError);
  return std::make_unique<MemoryOpenFolder>(fileSystem_, *node, fileSystem_.inUse());
}

}  // namespace zelvane::platform
