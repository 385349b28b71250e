#include "tests/browsers/fixture_profiles.h"

#include <filesystem>
#include <fstream>

#include "tests/browsers/fixture_database.h"

namespace zelvane::test {

void makeFirefoxProfile(const std::string& folder) {
  makeDatabase(folder + "/places.sqlite", "firefox-places", R"(
    INSERT INTO moz_origins (id, prefix, host, frecency) VALUES
      (1, 'https://', 'seen.example', 100), (2, 'https://', 'kept.example', 100),
      (3, 'https://', 'named.example', 100);
    INSERT INTO moz_places (id, url, title, visit_count, typed, frecency, last_visit_date, guid,
                            foreign_count, origin_id, description, preview_image_url, site_name) VALUES
      (1, 'https://seen.example/a', 'Seen', 2, 1, 100, 17, 'seen', 0, 1, 'seen', 'seen', 'seen'),
      (2, 'https://kept.example/b', 'Kept', 3, 1, 100, 18, 'kept', 1, 2, 'text', 'image', 'site'),
      (3, 'https://named.example/c', 'Named', 0, 0, 100, NULL, 'named', 1, 3, NULL, NULL, NULL);
    INSERT INTO moz_historyvisits (id, place_id, visit_date, visit_type) VALUES
      (1, 1, 16, 2), (2, 1, 17, 1), (3, 2, 18, 2), (4, 1, 19, 7);
    INSERT INTO moz_historyvisits_extra VALUES (1, 'seen');
    INSERT INTO moz_places_extra VALUES (1, 'seen');
    INSERT INTO moz_inputhistory VALUES (1, 'see', 1), (2, 'kep', 2);
    INSERT INTO moz_bookmarks (id, type, fk, parent, position, title, guid) VALUES
      (100, 1, 2, 5, 0, 'My bookmark', 'mybookmark');
    INSERT INTO moz_keywords (id, keyword, place_id) VALUES (1, 'short', 3);
    INSERT INTO moz_anno_attributes VALUES (1, 'downloads/destinationFileURI'), (2, 'mine/note');
    INSERT INTO moz_annos (id, place_id, anno_attribute_id, content) VALUES
      (1, 1, 1, 'file:///home/seen'), (2, 2, 1, 'file:///home/kept'), (3, 2, 2, 'a note');
    INSERT INTO moz_places_metadata_search_queries VALUES (1, 'seen query');
    INSERT INTO moz_places_metadata (id, place_id, search_query_id) VALUES (1, 1, 1), (2, 2, NULL);
    INSERT INTO moz_newtab_shortcuts_interaction VALUES (1, 1, 1, 1, 0, 0);
    INSERT INTO moz_previews_tombstones VALUES ('seen');
    INSERT INTO moz_meta VALUES ('origin_frecency_sum', 5), ('sync/history/lastSync', 7))");
  makeDatabase(folder + "/favicons.sqlite", "firefox-favicons", R"(
    INSERT INTO moz_icons (id, icon_url, fixed_icon_url_hash, root, data) VALUES
      (1, 'https://seen.example/icon.png', 1, 0, 'seen'), (2, 'https://kept.example/icon.png', 2, 0, 'kept'),
      (3, 'https://seen.example/favicon.ico', 3, 1, 'seen'), (4, 'https://kept.example/favicon.ico', 4, 1, 'kept');
    INSERT INTO moz_pages_w_icons VALUES (1, 'https://seen.example/a', 1), (2, 'https://kept.example/b', 2);
    INSERT INTO moz_icons_to_pages (page_id, icon_id) VALUES (1, 1), (2, 2))");
  makeDatabase(folder + "/cookies.sqlite", "firefox-cookies",
               "INSERT INTO moz_cookies (name, value, host) VALUES ('a', 'seen', 'seen.example')");
  makeDatabase(folder + "/permissions.sqlite", "firefox-permissions", R"(
    INSERT INTO moz_perms (origin, type) VALUES ('https://seen.example', 'geo'), ('moz-extension://own', 'geo');
    INSERT INTO moz_origin_interactions VALUES ('https://seen.example', 3))");
  writeFile(folder + "/sessionstore.jsonlz4", "seen");
  writeFile(folder + "/sessionstore-backups/recovery.jsonlz4", "seen");
  writeFile(folder + "/storage/default/https+++seen.example/.metadata-v2", "seen");
  writeFile(folder + "/storage/default/https+++seen.example/ls/data.sqlite", "seen");
  writeFile(folder + "/storage/default/moz-extension+++own/idb/data.sqlite", "kept");
  writeFile(folder + "/storage/permanent/chrome/idb/data.sqlite", "kept");
  for (const char* kept : {"key4.db", "logins.json", "cert9.db", "prefs.js", "extensions.json",
                           "bookmarkbackups/bookmarks.jsonlz4"}) {
    writeFile(folder + "/" + kept, "kept");
  }
}

void makeChromiumProfile(const std::string& folder) {
  makeDatabase(folder + "/History", "chromium-history", R"(
    INSERT INTO meta VALUES ('version', '70');
    INSERT INTO urls (id, url, title, visit_count, typed_count, last_visit_time) VALUES
      (1, 'https://seen.example/a', 'Seen', 2, 1, 17), (2, 'https://kept.example/b', 'Kept', 1, 1, 18);
    INSERT INTO visits (id, url, visit_time) VALUES (1, 1, 16), (2, 1, 17), (3, 2, 18);
    INSERT INTO keyword_search_terms VALUES (1, 1, 'seen', 'seen');
    INSERT INTO downloads_url_chains VALUES (1, 0, 'https://seen.example/file');
    INSERT INTO journeys (journey_id, title, creation_time_micros) VALUES ('1', 'seen', 5);
    CREATE TABLE of_a_later_version (text); INSERT INTO of_a_later_version VALUES ('seen'))");
  makeDatabase(folder + "/Favicons", "chromium-favicons", R"(
    INSERT INTO meta VALUES ('version', '8');
    INSERT INTO favicons VALUES (1, 'https://seen.example/favicon.ico', 1), (2, 'https://kept.example/favicon.ico', 1);
    INSERT INTO favicon_bitmaps (id, icon_id, image_data) VALUES (1, 1, 'seen'), (2, 2, 'kept');
    INSERT INTO icon_mapping VALUES (1, 'https://seen.example/a', 1, 0), (2, 'https://kept.example/b', 2, 0))");
  makeDatabase(
      folder + "/Network Action Predictor", "chromium-network-action-predictor",
      "INSERT INTO network_action_predictor VALUES ('1', 'see', 'https://seen.example/a', 1, 0)");
  writeFile(folder + "/Bookmarks", R"({"roots": {"bookmark_bar": {"children": [
    {"children": [{"name": "Kept", "type": "url", "url": "https://kept.example/b"}], "type": "folder"}]}}})");
  writeFile(folder + "/Preferences",
            R"({"homepage": "https://kept.example/", "profile": {"content_settings":
    {"exceptions": {"geolocation": {"https://seen.example:443,*": {"setting": 1},
                                    "chrome-extension://own/,*": {"setting": 1}}}}}})");
  for (const char* kept : {"Login Data", "Secure Preferences", "Extension Cookies", "Web Data"}) {
    writeFile(folder + "/" + kept, "kept");
  }
  writeFile(folder + "/IndexedDB/https_seen.example_0.indexeddb.leveldb/LOG", "seen");
  writeFile(folder + "/IndexedDB/chrome-extension_own_0.indexeddb.leveldb/LOG", "kept");
  writeFile(folder + "/Sessions/Session_1", "seen");
  makeLevelDb(folder + "/Local Storage/leveldb",
              {{"VERSION", "1"},
               {"META:https://seen.example", "seen"},
               {std::string("_https://seen.example\0\1key", 26), "seen"},
               {"META:chrome-extension://own", "kept"},
               {std::string("_chrome-extension://own\0\1key", 28), "kept"}});
}

void listForFirefox(const std::string& root, const std::vector<std::string>& paths) {
  std::string list;
  for (std::size_t number = 0; number < paths.size(); ++number) {
    const bool isWhole = std::filesystem::path(paths[number]).has_root_directory();
    list += "[Profile" + std::to_string(number) + "]\nName=p" + std::to_string(number) +
            "\nIsRelative=" + (isWhole ? "0" : "1") + "\nPath=" + paths[number] + "\n\n";
  }
  writeFile(root + "/profiles.ini", list);
}

void listForChromium(const std::string& root, const std::vector<std::string>& names) {
  std::string members;
  for (const std::string& name : names) {
    members.append(members.empty() ? "\"" : ", \"").append(name);
    members.append("\": {\"name\": \"").append(name).append("\"}");
  }
  writeFile(root + "/Local State", "{\"profile\": {\"info_cache\": {" + members + "}}}");
}

void writeFile(const std::string& path, std::string_view content) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << content;
}

}  // namespace zelvane::test
