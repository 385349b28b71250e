// Browsers on a Windows desktop.
#pragma once

#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// The user's own "home", "roaming" and "local", as far as the shell knows them.
UserFolders foldersOfUser();

// A browser is open where it holds a file of its own,
//
//     PROFILE\parent.lock     Firefox: shared with nobody
//     ROOT\lockfile           Chromium: shared with readers alone
//     PROFILE\places.sqlite   either: each database whose traces are known, shared as it may be
//
// which is found out by opening it, shared with nobody, for the blink of an eye. A browser that
// wants it in that moment may find it taken; those that are known try again.
//
// No file system of Windows lets two folders change places in one step.
class WindowsBrowserDesktop : public BrowserDesktop {
 public:
  // "home" is among them; where it is not known, no folder is the user's own.
  explicit WindowsBrowserDesktop(UserFolders folders) : folders_(std::move(folders)) {}

  const UserFolders& folders() const override { return folders_; }
  std::optional<std::string> ownFolder(const std::string& path) const override;
  PathKind kindOf(const std::string& path) const override;
  std::vector<std::string> namesIn(const std::string& folder) const override;
  bool isOpen(const Profile& profile) const override;
  void putInPlace(const std::string& fresh, const std::string& path,
                  const std::string& aside) const override;
  void rename(const std::string& from, const std::string& to) const override;
  void provideFolder(const std::string& path) const override;

 private:
  bool isHeld(const std::string& path) const;

  UserFolders folders_;
};

}  // namespace zelvane::platform
