// Erasing below a folder of a Linux file system.
#pragma once

#include "platform/folder_tree.h"
#include "platform/linux/guarded_folder.h"

namespace zelvane::platform {

// Hidden files are those whose name begins with a dot. Lists are sorted by inode. A mount point is
// listed, because its name is a folder's, and refused.
class LinuxFolderTree : public FolderTree {
 public:
  explicit LinuxFolderTree(GuardedFolder::Options options = {}) : options_(options) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  GuardedFolder::Options options_;
};

}  // namespace zelvane::platform
