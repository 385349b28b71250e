// What a browser is set to in one profile, in whichever files its family keeps that.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/files.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// As read from the disk, once. Names are those of the family: "browser.startup.page" of Firefox,
// "session/startup_urls", a path of members, of Chromium.
class ProfileSettings {
 public:
  struct File {
    std::string path;
    std::string content;
  };

  ProfileSettings() = default;
  ProfileSettings(const ProfileSettings&) = delete;
  ProfileSettings& operator=(const ProfileSettings&) = delete;
  virtual ~ProfileSettings() = default;

  // Nothing where the browser follows its own default.
  virtual std::optional<nlohmann::json> find(const std::string& name) const = 0;

  // Whether the browser guards this one with a key, and takes back what others change.
  virtual bool isGuarded(const std::string& name) const = 0;

  // Throws where no such value can be set. Nothing is on disk yet.
  virtual void set(const std::string& name, const nlohmann::json& value) = 0;

  // What has to be on disk for what was set to be true.
  virtual std::vector<File> changed() const = 0;
};

// Nothing where the browser has not kept any settings yet. Throws where they are not understood,
// where there is more of them than any browser has, or a link in their place.
std::unique_ptr<ProfileSettings> settingsOf(const Profile& profile, const BrowserDesktop& desktop,
                                            const Files& files);

}  // namespace zelvane::platform
