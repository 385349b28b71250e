// Browsers on a Linux desktop.
#pragma once

#include "platform/linux/environment.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// A browser is open where it holds its own lock,
//
//     PROFILE/.parentlock     Firefox: a lock of fcntl
//     ROOT/SingletonLock      Chromium: a link to HOST-PROCESS, on another host only
//
// or where a process of this user holds a file of the profile open, which is how packages whose
// processes live in a world of their own are seen, and any other program that looks into it.
class LinuxBrowserDesktop : public BrowserDesktop {
 public:
  explicit LinuxBrowserDesktop(const Environment& environment);

  const UserFolders& folders() const override { return folders_; }
  std::optional<std::string> ownFolder(const std::string& path) const override;
  PathKind kindOf(const std::string& path) const override;
  std::vector<std::string> namesIn(const std::string& folder) const override;
  bool isOpen(const Profile& profile) const override;
  // The two change places.
  void putInPlace(const std::string& fresh, const std::string& path,
                  const std::string& aside) const override;
  void rename(const std::string& from, const std::string& to) const override;
  void provideFolder(const std::string& path) const override;

 private:
  UserFolders folders_;
};

}  // namespace zelvane::platform
