#include "platform/shared/browsers/setting_rows.h"

#include <array>

namespace zelvane::platform {
namespace {

// What Firefox completes an address from. All of these are on in a new profile.
constexpr auto kSourcesOfFirefox = std::to_array<const char*>(
    {"browser.urlbar.autoFill", "browser.urlbar.suggest.history", "browser.urlbar.suggest.bookmark",
     "browser.urlbar.suggest.openpage", "browser.urlbar.suggest.remotetab",
     "browser.urlbar.suggest.topsites"});

// Chromium has one switch, for what others are asked about what one types. What it knows itself it
// offers always.
constexpr auto kSourcesOfChromium = std::to_array<const char*>({"search/suggest_enabled"});

}  // namespace

std::vector<Setting> startPageSettings(Family family, const std::string& address) {
  const std::string page = address.empty() ? "about:blank" : address;
  if (family == Family::firefox) {
    constexpr int kHomePage = 1;  // neither a blank one nor the last session
    return {{"browser.startup.homepage", page}, {"browser.startup.page", kHomePage}};
  }
  constexpr int kTheseAddresses = 4;  // neither a new tab nor the last session
  return {{"homepage", page},
          {"homepage_is_newtabpage", false},
          {"session/restore_on_startup", kTheseAddresses},
          {"session/startup_urls", nlohmann::json::array({page})}};
}

std::vector<Setting> suggestionSettings(Family family, bool suggests) {
  std::vector<Setting> settings;
  const auto add = [&](const auto& names) {
    for (const char* name : names) settings.push_back({name, suggests, true});
  };
  if (family == Family::firefox) {
    add(kSourcesOfFirefox);
  } else {
    add(kSourcesOfChromium);
  }
  return settings;
}

}  // namespace zelvane::platform
