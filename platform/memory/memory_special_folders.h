// Special folders that tests place in a tree that lives in memory.
#pragma once

#include <map>
#include <string>

#include "platform/memory/memory_file_system.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

class MemorySpecialFolders : public SpecialFolders {
 public:
  explicit MemorySpecialFolders(const MemoryFileSystem& fileSystem) : fileSystem_(fileSystem) {}

  std::optional<std::string> path(SpecialFolder folder) const override;
  std::optional<std::string> temporaryPath() const override;

  // What the desktop's settings say. It need not be sensible.
  void set(SpecialFolder folder, std::string path) { folders_[folder] = std::move(path); }
  void setTemporary(std::string path) { temporary_ = std::move(path); }
  void setHome(std::string path) { home_ = std::move(path); }

 private:
  std::optional<std::string> usable(std::string path) const;

  const MemoryFileSystem& fileSystem_;
  std::map<SpecialFolder, std::string> folders_;
  std::string temporary_;
  std::string home_ = "/home/user";
};

}  // namespace zelvane::platform
