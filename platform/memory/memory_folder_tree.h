// Erasing in a tree that lives in memory.
#pragma once

#include "platform/folder_tree.h"
#include "platform/memory/memory_file_system.h"

namespace zelvane::platform {

// What it deletes is recorded by the file system, in order.
class MemoryFolderTree : public FolderTree {
 public:
  explicit MemoryFolderTree(MemoryFileSystem& fileSystem) : fileSystem_(fileSystem) {}

  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  MemoryFileSystem& fileSystem_;
};

}  // namespace zelvane::platform
