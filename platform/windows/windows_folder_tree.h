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
  using Options = HeldFolder::Options;

  // As the system that it runs on needs it.
  static Options usualOptions();

  explicit WindowsFolderTree(Options options = usualOptions()) : options_(options) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  Options options_;
};

}  // namespace zelvane::platform
