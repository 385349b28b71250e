#include "cleaner/home_page.h"

#include "cleaner/browser_settings.h"
#include "core/handler.h"

namespace zelvane::cleaner {

namespace {

constexpr auto kSection = "HomePage";
constexpr auto kKey = "StartPage";

}  // namespace

HomePage::HomePage(CleanerPage& page, core::SettingsStore& settings, platform::Registry& registry)
    : page_(page), settings_(settings), registry_(registry) {
  page_.cmdHomePage.clicked.connect([this] { cmdHomePage_Click(); });
}

void HomePage::reimpose() {
  page_.txtHomePageURL.setText(
      settings_.load(core::SettingsStore::Application::title, kSection, kKey, "about:blank"));
  writeStartPage(registry_, page_.txtHomePageURL.text());
}

void HomePage::cmdHomePage_Click() {
  const std::string& address = page_.txtHomePageURL.text();
  writeStartPage(registry_, address);
  core::ignoringErrors(
      [&] { settings_.save(core::SettingsStore::Application::title, kSection, kKey, address); });
}

}  // namespace zelvane::cleaner
