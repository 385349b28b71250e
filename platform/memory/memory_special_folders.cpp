#include "platform/memory/memory_special_folders.h"

namespace zelvane::platform {

std::optional<std::string> MemorySpecialFolders::path(SpecialFolder folder) const {
  const auto found = folders_.find(folder);
  return found == folders_.end() ? std::nullopt : usable(found->second);
}

std::optional<std::string> MemorySpecialFolders::temporaryPath() const {
  const std::optional<std::string> folder = usable(temporary_);
  return folder ? std::optional(*folder + "/") : std::nullopt;
}

std::optional<std::string> MemorySpecialFolders::usable(std::string path) const {
  while (path.ends_with('/')) path.pop_back();
  if (path.empty() || (home_ + "/").starts_with(path + "/")) return std::nullopt;
  const MemoryNode* node = fileSystem_.findTarget(path);
  if (node == nullptr || node->kind != MemoryNode::Kind::folder) return std::nullopt;
  return path;
}

}  // namespace zelvane::platform
