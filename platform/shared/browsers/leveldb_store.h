// Entries of a browser's LevelDB that are erased.
#pragma once

#include <string>

#include "platform/folder_tree.h"
#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/browsers/rules.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// A folder in the format of LevelDB (github.com/google/leveldb), in which sites and extensions lie
// side by side. Deleted entries live on in its lists of files and in its log, so what stays is
// copied into a new folder, which takes the old one's place:
//
//     leveldb                 the browser's
//     leveldb.zelvane-new     ours: what stays, until it is whole
//     leveldb.zelvane-old     ours, on some systems: what was there
//
// A kill leaves one or two of ours, which the next erasure removes. Where it leaves the last
// and not the first, the next look at the store gives the browser its own back, whole as it was. A
// browser that is started before that look begins with none, as it does after a site's data were
// cleared; then its new one counts.
class LevelDbStore : public LiveStore {
 public:
  // All but `profile` outlive it. `tree` lists hidden files as well.
  LevelDbStore(std::string profile, const LevelDbRule& rule, const BrowserDesktop& desktop,
               FolderTree& tree);

  // True also for a folder that cannot be understood: it may hold anything.
  bool holdsAnything() const override;

  // Throws where it is in use or damaged; then it is as it was.
  void erase() override;

 private:
  std::string path() const;
  std::string newPath() const { return path() + ".zelvane-new"; }
  std::string oldPath() const { return path() + ".zelvane-old"; }
  void putBack() const;
  void removeOurs();

  std::string profile_;
  const LevelDbRule& rule_;
  const BrowserDesktop& desktop_;
  FolderTree& tree_;
};

}  // namespace zelvane::platform
