// The documents that the desktop and its programs remember.
#pragma once

#include "platform/linux/environment.h"
#include "platform/linux/linux_browser_desktop.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// Contributes to the recent documents what is there of the places in recent_places.h: a store for
// each list, copy and database, a real folder for each folder.
//
// A list is replaced by an empty one rather than deleted, because running programs keep it in
// memory and write a missing one again. Of a folder the hidden files go, too: they are named for
// hidden documents.
class RecentlyUsed : public LiveSource {
 public:
  explicit RecentlyUsed(const Environment& environment);

  void find(SpecialFolder folder, LiveFinding& finding) const override;

 private:
  Environment environment_;
  LinuxBrowserDesktop desktop_;
};

}  // namespace zelvane::platform
