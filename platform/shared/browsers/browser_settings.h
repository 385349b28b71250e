// The browsers' own settings that follow the program's.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/notifications.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/browsers/former_pages.h"

namespace zelvane::platform {

struct Setting;

// A browser that is open is left, and so is one that guards the setting, or whose file of settings
// is no such file: nobody is told, and the next call tries again. One that fails stops no other.
// Nothing is written where everything is as wanted. None of these calls throws a platform::Error.
class BrowserSettings {
 public:
  // All are borrowed.
  BrowserSettings(const BrowserDesktop& desktop, Files& files, FormerPages& formerPages,
                  Notifications& notifications)
      : desktop_(desktop),
        files_(files),
        formerPages_(formerPages),
        notifications_(notifications) {}

  // What a profile had before this gave it a page for the first time is noted beforehand, and its
  // user told of that; where it cannot be noted, the profile is left.
  void imposeStartPage(const std::string& address) const;

  void suggestAddresses(bool suggests) const;

  // Whether any browser does, in any profile; nothing where none can be asked.
  std::optional<bool> suggestsAddresses() const;

 private:
  bool wants(const Profile& profile, const std::vector<Setting>& settings) const;
  bool impose(const Profile& profile, const std::vector<Setting>& settings, bool isNoted) const;
  void tell(const std::vector<std::string>& titles) const;

  const BrowserDesktop& desktop_;
  Files& files_;
  FormerPages& formerPages_;
  Notifications& notifications_;
};

}  // namespace zelvane::platform
