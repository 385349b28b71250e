// The desktop's lists of recently used documents.
#pragma once

#include "platform/linux/environment.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// Contributes to the recent documents, where they are there:
//
//     $XDG_DATA_HOME/recently-used.xbel      the list of most programs
//     $XDG_DATA_HOME/recently-used.xbel.*    copies that a crash left beside it
//     ~/.recently-used.xbel, ~/.recently-used    the same list in former days
//     $XDG_DATA_HOME/RecentDocuments         KDE's: a folder with a small file for each document
//
// A list is replaced by an empty one rather than deleted, because running programs keep it in
// memory and write a missing one again. Copies are deleted.
class RecentlyUsed : public LiveSource {
 public:
  explicit RecentlyUsed(const Environment& environment);

  void find(SpecialFolder folder, LiveFinding& finding) const override;

 private:
  std::string home_;
  std::string dataHome_;
};

}  // namespace zelvane::platform
