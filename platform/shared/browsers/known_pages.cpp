#include "platform/shared/browsers/known_pages.h"

#include "platform/shared/browsers/database.h"
#include "platform/shared/browsers/json_file.h"

namespace zelvane::platform {
namespace {

// Folders of bookmarks lie in each other to any depth, so a list of what is still to be seen is
// kept in place of calls within calls.
void addAddresses(const nlohmann::json& bookmarks, std::vector<std::string>& addresses) {
  std::vector<const nlohmann::json*> unseen = {&bookmarks};
  while (!unseen.empty()) {
    const nlohmann::json& value = *unseen.back();
    unseen.pop_back();
    if (value.is_object()) {
      const auto url = value.find("url");
      if (url != value.end() && url->is_string()) addresses.push_back(url->get<std::string>());
    }
    if (!value.is_structured()) continue;
    for (const nlohmann::json& part : value) unseen.push_back(&part);
  }
}

std::vector<std::string> addressesIn(const std::string& database, const BrowserDesktop& desktop,
                                     const std::string& query) {
  if (desktop.kindOf(database) == PathKind::nothing) return {};
  return Database(database, Database::Use::reading, desktop).texts(query);
}

}  // namespace

std::vector<std::string> bookmarksOfFirefox(const std::string& profile,
                                            const BrowserDesktop& desktop, const Files&) {
  return addressesIn(
      profile + "/places.sqlite", desktop,
      "SELECT url FROM moz_places WHERE id IN (SELECT fk FROM moz_bookmarks) OR id IN "
      "(SELECT place_id FROM moz_keywords)");
}

std::vector<std::string> visitedByFirefox(const std::string& profile, const BrowserDesktop& desktop,
                                          const Files&) {
  return addressesIn(
      profile + "/places.sqlite", desktop,
      "SELECT url FROM moz_places WHERE id IN (SELECT place_id FROM moz_historyvisits)");
}

std::vector<std::string> visitedByChromium(const std::string& profile,
                                           const BrowserDesktop& desktop, const Files&) {
  return addressesIn(profile + "/History", desktop, "SELECT url FROM urls");
}

std::vector<std::string> bookmarksOfChromium(const std::string& profile,
                                             const BrowserDesktop& desktop, const Files& files) {
  std::vector<std::string> addresses;
  for (const char* name : {"Bookmarks", "AccountBookmarks"}) {
    const std::optional<nlohmann::json> bookmarks = readJson(profile + "/" + name, desktop, files);
    if (bookmarks) addAddresses(*bookmarks, addresses);
  }
  return addresses;
}

}  // namespace zelvane::platform
