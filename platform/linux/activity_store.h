// What KDE's activity manager remembers of the documents that were used.
#pragma once

#include <string>

#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

// The manager keeps a database of its own, of version 5.27
//
//     ResourceEvent, ResourceScoreCache    which document was used when, by which program
//     ResourceInfo                         names of documents that are or were among them
//     ResourceLink                         what the user has put among the favourites
//
// and what it does not know to be gone it writes again. So it is asked, over the session's bus, to
// forget the first two for all activities and programs, which leaves the favourites as they are.
// Where it is not running, nobody is asked, and its database stays as it is.
class ActivityStore : public LiveStore {
 public:
  // `desktop` is borrowed.
  ActivityStore(std::string database, const BrowserDesktop& desktop)
      : database_(std::move(database)), desktop_(desktop) {}

  // Also where the database cannot be read.
  bool holdsAnything() const override;

  // Waits two seconds at most. Throws where the manager is not running or does not do it.
  void erase() override;

 private:
  std::string database_;
  const BrowserDesktop& desktop_;
};

}  // namespace zelvane::platform
