// Special folders that are put together from several places, over any desktop's folders and tree.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/folder_tree.h"
#include "platform/shared/live_folder.h"
#include "platform/special_folders.h"

namespace zelvane::platform {

// Histories, caches, recent documents and the like lie in files of other programs, which cannot be
// deleted as a whole. For each such special folder this shows one folder:
//
//     the special folder            its path names the real places: "/home/u/a.xbel,
//     /home/u/Recent"
//       +-- the desktop's own folder, if it has one (first)
//       +-- a store                 shown as a file, erased by editing its owner's file
//       +-- a real folder           passed on to the desktop's tree
//       +-- a profile               a subfolder of the same kind
//
// Everything is looked for anew by `path` and by `openRoot`. A special folder to which no source
// contributes, and any path that did not come from here, is the desktop's own affair.
class LiveFolders : public SpecialFolders, public FolderTree {
 public:
  using Sources = std::vector<std::reference_wrapper<const LiveSource>>;

  // All of them are borrowed for the lifetime of this object.
  LiveFolders(const SpecialFolders& folders, FolderTree& tree, Sources sources);

  // Where the places are too many for a path, the text says how many more there are.
  std::optional<std::string> path(SpecialFolder folder) const override;
  std::optional<std::string> temporaryPath() const override { return folders_.temporaryPath(); }
  std::unique_ptr<OpenFolder> openRoot(const std::string& path) override;

 private:
  LiveFinding find(SpecialFolder folder) const;

  const SpecialFolders& folders_;
  FolderTree& tree_;
  Sources sources_;
  // The texts that `path` gave out. A place that appears before the folder is opened must not make
  // its text a stranger's.
  mutable std::map<std::string, SpecialFolder> given_;
};

}  // namespace zelvane::platform
