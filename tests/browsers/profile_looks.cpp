#include "tests/browsers/profile_looks.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "tests/browsers/fixture_database.h"

namespace zelvane::test {
namespace {

Look rows(std::string name, const std::string& file, const std::string& query) {
  return {std::move(name), [=] {
            std::string all = rowsOf(file, "PRAGMA integrity_check")[0];
            for (const std::string& row : rowsOf(file, query)) all += "\n" + row;
            return all;
          }};
}

}  // namespace

std::vector<Look> looksAtFirefox(const std::string& profile) {
  const std::string places = profile + "/places.sqlite";
  return {rows("pages", places,
               "SELECT url, visit_count FROM moz_places UNION ALL SELECT id, visit_date FROM "
               "moz_historyvisits UNION ALL SELECT host, id FROM moz_origins"),
          rows("bookmarks", places, "SELECT * FROM moz_bookmarks"),
          rows("icons", profile + "/favicons.sqlite", "SELECT icon_url FROM moz_icons"),
          rows("cookies", profile + "/cookies.sqlite", "SELECT host FROM moz_cookies")};
}

std::vector<Look> looksAtChromium(const std::string& profile) {
  const auto localStorage = [profile] {
    std::string all;
    for (const auto& [key, value] : entriesOf(profile + "/Local Storage/leveldb")) {
      all.append(key).append("=").append(value).append("\n");
    }
    return all;
  };
  return {
      rows("pages", profile + "/History", "SELECT url FROM urls UNION ALL SELECT id FROM visits"),
      rows("icons", profile + "/Favicons", "SELECT page_url FROM icon_mapping"),
      {"local storage", localStorage},
      {"settings", [profile] { return contentOf(profile + "/Preferences"); }},
      {"bookmarks", [profile] { return contentOf(profile + "/Bookmarks"); }}};
}

std::vector<std::string> seenBy(const std::vector<Look>& looks) {
  std::vector<std::string> seen;
  seen.reserve(looks.size());
  for (const Look& look : looks) seen.push_back(look.now());
  return seen;
}

std::vector<std::string> neitherBeforeNorAfter(const std::vector<Look>& looks,
                                               const std::vector<std::string>& before,
                                               const std::vector<std::string>& after) {
  const std::vector<std::string> now = seenBy(looks);
  std::vector<std::string> names;
  for (std::size_t look = 0; look < looks.size(); ++look) {
    if (now[look] != before[look] && now[look] != after[look]) {
      names.push_back(looks[look].name + ":\n" + now[look]);
    }
  }
  return names;
}

std::string filesWith(std::string_view text, const std::string& folder) {
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string path = entry.path().generic_string();
    const bool isFile = entry.is_regular_file() && !entry.is_symlink();
    if (path.find(text) != std::string::npos ||
        (isFile && contentOf(path).find(text) != std::string::npos)) {
      found.insert(path.substr(folder.size() + 1));
    }
  }
  std::string names;
  for (const std::string& name : found) names += name + "\n";
  return names;
}

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace zelvane::test
