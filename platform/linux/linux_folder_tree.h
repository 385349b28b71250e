// Erasing below a folder of a Linux file system.
#pragma once

#include <chrono>

#include "platform/folder_tree.h"
#include "platform/linux/guarded_folder.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

// Hidden files are those whose name begins with a dot. Lists are sorted by inode, those of very
// large folders piece by piece. A mount point is listed, because its name is a folder's, and
// refused.
//
// The folder of temporary files is everybody's meeting place. As a root it is listed like any
// other, but permissionDenied is what comes of touching
//
//     another user's file or folder
//     a socket, a pipe or a device, and any other thing in a folder below it that has one of these
//     what belongs to a service by its name (see temporary_rules.h)
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

  // `folders` names the folder of temporary files. It is borrowed.
  LinuxFolderTree(Options options, const SpecialFolders& folders)
      : options_(options), folders_(&folders) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  Options options_;
  const SpecialFolders* folders_ = nullptr;  // without, there is no such folder
};

}  // namespace zelvane::platform
