// Erasing below a folder of a Linux file system.
#pragma once

#include <chrono>

#include "platform/folder_tree.h"
#include "platform/linux/guarded_folder.h"

namespace zelvane::platform {

// Hidden files are those whose name begins with a dot. Lists are sorted by inode, those of very
// large folders piece by piece. A mount point is listed, because its name is a folder's, and
// refused.
class LinuxFolderTree : public FolderTree {
 public:
  struct Options {
    GuardedFolder::Options way = {};
    // How long after a listing its files are deleted without another look at each of them.
    std::chrono::milliseconds listingIsGood{100};
    // For folders that belong to one program whole, whose hidden files are nobody else's.
    bool listsHiddenFiles = false;
  };

  LinuxFolderTree() = default;
  explicit LinuxFolderTree(Options options) : options_(options) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  Options options_;
};

}  // namespace zelvane::platform
