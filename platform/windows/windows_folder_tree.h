// Erasing below a folder of a Windows volume.
#pragma once

#include "platform/folder_tree.h"
#include "platform/windows/held_folder.h"

namespace zelvane::platform {

// Hidden files are those with the hidden or the system attribute. Junctions are listed among the
// subfolders, like mounted volumes, and refused like them. A file is in use when any program has it
// open, also one that would let others delete it.
class WindowsFolderTree : public FolderTree {
 public:
  struct Options {
    HeldFolder::Options way = {};
    // For folders that belong to one program whole, whose hidden files are nobody else's.
    bool listsHiddenFiles = false;
  };

  // As the system that it runs on needs it.
  static HeldFolder::Options usualWay();

  WindowsFolderTree() : WindowsFolderTree({.way = usualWay()}) {}
  explicit WindowsFolderTree(Options options) : options_(options) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  Options options_;
};

}  // namespace zelvane::platform
