#include "platform/shared/live_registry.h"

#include <algorithm>
#include <utility>

#include "platform/shared/ascii_case.h"
#include "platform/shared/registry_names.h"

namespace zelvane::platform {

LiveRegistry::LiveRegistry(Registry& registry, std::vector<LiveKey> keys)
    : registry_(registry), keys_(std::move(keys)) {}

Registry::Result LiveRegistry::deleteKey(Root root, const std::string& path) {
  const Result result = registry_.deleteKey(root, path);
  const auto isMeant = [&](const LiveKey& key) {
    return std::ranges::equal(keyNames(key.path), keyNames(path), sameName);
  };
  const auto live = std::ranges::find_if(keys_, isMeant);
  if (root != Root::currentUser || live == keys_.end()) return result;
  live->erase();
  return result == Result::notFound ? Result::success : result;
}

}  // namespace zelvane::platform
