#include "cleaner/erasure.h"

#include <deque>
#include <memory>
#include <string_view>
#include <utility>

#include "core/handler.h"
#include "platform/error.h"
#include "platform/event_pump.h"
#include "platform/folder_tree.h"

namespace zelvane::cleaner {

using core::ignoringErrors;
using platform::OpenFolder;

namespace {

// One folder on the way from the root to where the erasure is now. The walk keeps these on a stack
// of its own, because a tree may be deeper than any thread's stack.
struct Level {
  Level(std::string folderName, std::unique_ptr<OpenFolder> opened, platform::EventPump& pump)
      : name(std::move(folderName)), folder(std::move(opened)), listing(folder->list(pump)) {}

  std::string name;
  std::unique_ptr<OpenFolder> folder;
  const platform::FolderListing listing;
  platform::NameList::Iterator nextSubfolder = listing.subfolders.begin();
};

// Closes the deepest folder first, also when the program is ended in the middle of a walk.
struct Walk {
  Walk() = default;
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;
  ~Walk() {
    while (!levels.empty()) {
      levels.pop_back();
    }
  }

  std::deque<Level> levels;  // which never moves them
};

void eraseFiles(const Level& level, platform::EventPump& pump) {
  for (const std::string_view file : level.listing.files) {
    ignoringErrors([&] { level.folder->removeFile(std::string(file)); });
    pump.doEvents();
  }
}

}  // namespace

void eraseContents(platform::FolderTree& tree, platform::EventPump& pump, const std::string& path) {
  Walk walk;
  auto& levels = walk.levels;
  levels.emplace_back(path, tree.openRoot(path), pump);
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.nextSubfolder != level.listing.subfolders.end()) {
      const std::string subfolder(*level.nextSubfolder++);
      ignoringErrors(
          [&] { levels.emplace_back(subfolder, level.folder->openSubfolder(subfolder), pump); });
      continue;
    }
    eraseFiles(level, pump);
    const std::string erased = std::move(level.name);
    levels.pop_back();
    if (!levels.empty()) {
      ignoringErrors([&] { levels.back().folder->removeFolder(erased); });
    }
  }
}

}  // namespace zelvane::cleaner
