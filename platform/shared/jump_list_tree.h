// Erasing the recent documents of the Windows shell, but not what their user has pinned.
#pragma once

#include "platform/files.h"
#include "platform/folder_tree.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

// The shell's folder of recent documents is listed like any other:
//
//     Recent
//       +-- *.lnk
//       +-- AutomaticDestinations    one jump list for each program: what was used, and pinned
//       +-- CustomDestinations       what programs themselves have put into theirs
//
// A jump list goes when it is known that nothing in it is pinned. One with pins is replaced by one
// that holds them alone, byte for byte, and then refused with permissionDenied, because it is still
// there; refused as well is one of which that cannot be told, and it stays whole. Refused in the
// same way are the two folders themselves, and everything in the second: a program writes its tasks
// there once and would miss them.
class JumpListTree : public FolderTree {
 public:
  // All are borrowed. `folders` names the recent documents.
  JumpListTree(const SpecialFolders& folders, FolderTree& tree, Files& files)
      : folders_(folders), tree_(tree), files_(files) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  const SpecialFolders& folders_;
  FolderTree& tree_;
  Files& files_;
};

}  // namespace zelvane::platform
