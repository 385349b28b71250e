// Files of a browser's that are deleted.
#pragma once

#include <string>

#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/browsers/rules.h"
#include "platform/shared/live_folder.h"

namespace zelvane::platform {

class FilesStore : public LiveStore {
 public:
  // All but `profile` outlive it.
  FilesStore(std::string profile, const FilesRule& rule, const BrowserDesktop& desktop,
             FolderTree& tree);

  bool holdsAnything() const override;

  // Throws after all has been tried where one of the files is in use or refuses.
  void erase() override;

 private:
  std::string profile_;
  const FilesRule& rule_;
  const BrowserDesktop& desktop_;
  FolderTree& tree_;
};

}  // namespace zelvane::platform
