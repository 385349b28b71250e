// A home with browsers in it, and the program's pages and registry before them.
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "cleaner/home_page.h"
#include "cleaner/options_handlers.h"
#include "platform/memory/memory_identity.h"
#include "platform/memory/memory_notifications.h"
#include "platform/memory/memory_registry.h"
#include "platform/memory/memory_settings.h"
#include "platform/shared/browsers/live_browser_values.h"
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {

class SettingsBed : public BrowserBed {
 public:
  SettingsBed() { std::filesystem::create_directories(dataFolder); }

  const std::string dataFolder = home + "/data";
  platform::MemoryNotifications notifications;
  platform::FormerPages formerPages{dataFolder, desktop, files};
  platform::BrowserSettings browserSettings{desktop, files, formerPages, notifications};
  platform::MemoryRegistry hive;
  platform::LiveRegistry registry{
      hive,
      {},
      platform::liveBrowserValues(browserSettings, platform::LiveRegistry::Answers::asItStands)};

  platform::MemorySettings stored;
  platform::MemoryIdentity identity;
  core::SettingsStore settings{stored, identity};
  cleaner::CleanerPage page;
  cleaner::HomePage homePage{page, settings, registry};
  const bool saving = true;
  cleaner::OptionsHandlers options{page, settings, registry, saving};

  const std::string prefs = firefox + "/prefs.js";
  const std::string userPrefs = firefox + "/user.js";
  const std::string preferences = chromium + "/Preferences";

  // Profiles with these settings and nothing else.
  void setUpFirefox(std::string_view content) {
    writeFile(prefs, content);
    listForFirefox(firefoxRoot, {"abcd.default"});
  }
  void setUpChromium(std::string_view content, std::string_view guarded = "{}") {
    writeFile(preferences, content);
    writeFile(chromium + "/Secure Preferences", guarded);
    listForChromium(chromiumRoot, {"Default"});
  }

  // As the user does in the window.
  void setHomePage(const std::string& address) {
    page.txtHomePageURL.setText(address);
    page.cmdHomePage.click();
  }

  nlohmann::json chromiumNow() const { return nlohmann::json::parse(read(preferences)); }
  nlohmann::json notes() const {
    return nlohmann::json::parse(read(formerPages.path())).at("profiles");
  }
};

}  // namespace zelvane::test
