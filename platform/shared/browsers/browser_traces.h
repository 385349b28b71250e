// The traces of all browsers, as the special folders show them.
#pragma once

#include "platform/files.h"
#include "platform/left_traces.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// Contributes to the history, the cache, the cookies and the favorites a subfolder for each
// profile:
//
//     Firefox (default-release)
//       +-- places.sqlite       a store: rows of a database, members of a file of JSON, files
//       +-- cache2              a real folder
//
// A browser that is open keeps all of its stores: each refuses to be erased, and that is noted.
class BrowserTraces : public LiveSource {
 public:
  // All are borrowed. `tree` lists hidden files as well.
  BrowserTraces(const BrowserDesktop& desktop, FolderTree& tree, Files& files, LeftTraces& left)
      : desktop_(desktop), tree_(tree), files_(files), left_(left) {}

  void find(SpecialFolder folder, LiveFinding& finding) const override;

  // Typed addresses have no special folder. Erases what it can of those of all profiles.
  void eraseTyped() const;

 private:
  template <typename Use>
  void forEachStore(const Profile& profile, Trace trace, const Use& use) const;
  std::vector<std::string> sparedIn(const FolderRule& rule, const std::string& path) const;
  void addFolders(const Profile& profile, Trace trace, LiveFolder& shown) const;

  const BrowserDesktop& desktop_;
  FolderTree& tree_;
  Files& files_;
  LeftTraces& left_;
};

}  // namespace zelvane::platform
