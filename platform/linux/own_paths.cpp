#include "platform/linux/own_paths.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/folder_entries.h"
#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {
namespace {

// A folder on the way and what leads to it.
struct Level {
  std::string path;
  Descriptor folder;
};

bool isOwnFolder(const Descriptor& folder) {
  const std::optional<EntryFacts> facts = factsOf(folder.get());
  return facts && facts->owner == geteuid();
}

std::vector<std::string> namesFitting(const Descriptor& folder, std::string_view pattern) {
  if (pattern.find('*') == std::string_view::npos) return {std::string(pattern)};
  std::vector<std::string> names;
  try {
    FolderReader().read(folder.get(), [&](std::span<const Entry> piece) {
      for (const Entry& entry : piece) {
        if (partFor(pattern, entry.name)) names.emplace_back(entry.name);
      }
    });
  } catch (const Error&) {
    names.clear();  // what cannot be listed holds nothing that could be erased
  }
  std::ranges::sort(names);
  return names;
}

bool mayEndAPath(const std::optional<EntryFacts>& facts) {
  return facts && (facts->kind != EntryKind::folder || facts->owner == geteuid());
}

void addBelow(const Level& level, std::string_view pattern, std::vector<std::string>& paths) {
  const std::size_t slash = std::min(pattern.find('/'), pattern.size());
  const std::string_view rest = pattern.substr(std::min(slash + 1, pattern.size()));
  for (const std::string& name : namesFitting(level.folder, pattern.substr(0, slash))) {
    const std::string path = level.path + "/" + name;
    if (rest.empty()) {
      if (mayEndAPath(factsOf(level.folder.get(), name))) paths.push_back(path);
      continue;
    }
    Descriptor next(
        openat(level.folder.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (next.isOpen() && isOwnFolder(next)) addBelow({path, std::move(next)}, rest, paths);
  }
}

}  // namespace

std::vector<std::string> ownPaths(const std::string& start, std::string_view pattern) {
  std::vector<std::string> paths;
  Descriptor folder(open(start.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.isOpen()) addBelow({start, std::move(folder)}, pattern, paths);
  return paths;
}

}  // namespace zelvane::platform
