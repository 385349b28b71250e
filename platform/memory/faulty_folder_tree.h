// A folder tree that fails when it is told to.
#pragma once

#include <memory>
#include <string>

#include "platform/folder_tree.h"
#include "platform/memory/faults.h"

namespace zelvane::platform {

// The subject of a call is the path of what it concerns: the root's as it was given, below it
// without the root's closing separators.
class FaultyFolderTree : public FolderTree {
 public:
  FaultyFolderTree(FolderTree& tree, Faults& faults) : tree_(tree), faults_(faults) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  FolderTree& tree_;
  Faults& faults_;
};

}  // namespace zelvane::platform
