#include "platform/linux/recently_used.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <fcntl.h>

#include "platform/linux/activity_store.h"
#include "platform/linux/folder_entries.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/own_paths.h"
#include "platform/linux/recent_list.h"
#include "platform/linux/recent_places.h"

namespace zelvane::platform {
namespace {

const std::string& startOf(const RecentPlace& place, const Environment& environment) {
  if (place.path.starts_with("{home}")) return environment.home;
  return place.path.starts_with("{data}") ? environment.dataHome : environment.cacheHome;
}

// A link in a list's place is shown, and refuses to be erased.
bool isInPlace(RecentKind kind, const std::string& path) {
  const std::optional<EntryFacts> facts = factsOf(AT_FDCWD, path);
  if (!facts) return false;
  switch (kind) {
    case RecentKind::list:
    case RecentKind::copy:
      return facts->kind != EntryKind::folder;
    case RecentKind::folder:
      return facts->kind == EntryKind::folder;
    case RecentKind::activities:
      return facts->kind == EntryKind::file;
  }
  return false;
}

void show(RecentKind kind, const std::string& path, const std::string& name,
          const BrowserDesktop& desktop, LiveFolder& shown) {
  switch (kind) {
    case RecentKind::list:
      return shown.addStore(name, std::make_unique<RecentList>(path));
    case RecentKind::copy:
      return shown.addStore(name, std::make_unique<RecentListCopy>(path));
    case RecentKind::activities:
      return shown.addStore(name, std::make_unique<ActivityStore>(path, desktop));
    case RecentKind::folder:
      return shown.addFolder(name, [path](FolderTree&) {
        return LinuxFolderTree({.listsHiddenFiles = true}).openRoot(path);
      });
  }
}

}  // namespace

RecentlyUsed::RecentlyUsed(const Environment& environment)
    : environment_(environment), desktop_(environment) {}

void RecentlyUsed::find(SpecialFolder folder, LiveFinding& finding) const {
  if (folder != SpecialFolder::recent) return;
  for (const RecentPlace& place : recentPlaces()) {
    const std::string& start = startOf(place, environment_);
    for (const std::string& path : ownPaths(start, place.path.substr(place.path.find('/') + 1))) {
      if (!isInPlace(place.kind, path)) continue;
      finding.places.push_back(path);
      // The dot of a hidden list's name would hide it here, too.
      const std::string name = path.substr(path.find_first_not_of("/.", start.size()));
      show(place.kind, path, name, desktop_, finding.folder);
    }
  }
}

}  // namespace zelvane::platform
