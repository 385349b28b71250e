#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::SpecialFolder;
using Rows = std::vector<std::string>;

class FirefoxTest : public testing::Test, public BrowserBed {
 protected:
  FirefoxTest() { installFirefox(); }

  Rows places(const std::string& query) const { return rowsOf(firefox + "/places.sqlite", query); }
};

TEST_F(FirefoxTest, HistoryTakesPagesWithTheirVisits) {
  erase(SpecialFolder::history);

  EXPECT_EQ(places("SELECT url FROM moz_places ORDER BY url"),
            (Rows{"https://kept.example/b", "https://named.example/c"}));
  EXPECT_EQ(places("SELECT count(*) FROM moz_historyvisits"), Rows{"0"});
  EXPECT_EQ(places("SELECT host FROM moz_origins ORDER BY host"),
            (Rows{"kept.example", "named.example"}));
}

TEST_F(FirefoxTest, HistoryTakesWhatBelongedToVisits) {
  erase(SpecialFolder::history);

  for (const char* table :
       {"moz_places_metadata", "moz_places_metadata_search_queries", "moz_places_extra",
        "moz_historyvisits_extra", "moz_newtab_shortcuts_interaction", "moz_previews_tombstones"}) {
    EXPECT_EQ(places(std::string("SELECT count(*) FROM ") + table), Rows{"0"}) << table;
  }
  EXPECT_EQ(places("SELECT content FROM moz_annos"), Rows{"a note"});
  EXPECT_EQ(places("SELECT key FROM moz_meta"), Rows{"sync/history/lastSync"});
}

TEST_F(FirefoxTest, BookmarksAndKeywordsStayWithTheirPages) {
  erase(SpecialFolder::history);

  EXPECT_EQ(places("SELECT title, fk FROM moz_bookmarks WHERE type = 1"), Rows{"My bookmark|2"});
  EXPECT_EQ(places("SELECT keyword, place_id FROM moz_keywords"), Rows{"short|3"});
  EXPECT_EQ(places("SELECT title, foreign_count FROM moz_places WHERE id = 2"), Rows{"Kept|1"});
}

TEST_F(FirefoxTest, ABookmarkedPageForgetsThatItWasVisited) {
  erase(SpecialFolder::history);

  EXPECT_EQ(
      places("SELECT visit_count, typed, frecency, recalc_frecency, last_visit_date, description, "
             "preview_image_url, site_name FROM moz_places WHERE id = 2"),
      Rows{"0|0|-1|1|NULL|NULL|NULL|NULL"});
}

TEST_F(FirefoxTest, IconsOfBookmarkedPagesAndTheirSitesStay) {
  erase(SpecialFolder::history);

  EXPECT_EQ(
      rowsOf(firefox + "/favicons.sqlite", "SELECT icon_url FROM moz_icons ORDER BY icon_url"),
      (Rows{"https://kept.example/favicon.ico", "https://kept.example/icon.png"}));
  EXPECT_EQ(rowsOf(firefox + "/favicons.sqlite", "SELECT page_url FROM moz_pages_w_icons"),
            Rows{"https://kept.example/b"});
  EXPECT_EQ(rowsOf(firefox + "/favicons.sqlite", "SELECT page_id, icon_id FROM moz_icons_to_pages"),
            Rows{"2|2"});
}

TEST_F(FirefoxTest, HistoryTakesTheSessions) {
  erase(SpecialFolder::history);

  EXPECT_FALSE(has(firefox + "/sessionstore.jsonlz4"));
  EXPECT_FALSE(has(firefox + "/sessionstore-backups/recovery.jsonlz4"));
}

TEST_F(FirefoxTest, CookiesTakeStorageAndPermissionsOfSitesAndNoneOfExtensions) {
  erase(SpecialFolder::cookies);

  EXPECT_EQ(rowsOf(firefox + "/cookies.sqlite", "SELECT count(*) FROM moz_cookies"), Rows{"0"});
  EXPECT_EQ(rowsOf(firefox + "/permissions.sqlite", "SELECT origin FROM moz_perms"),
            Rows{"moz-extension://own"});
  EXPECT_FALSE(has(firefox + "/storage/default/https+++seen.example"));
  EXPECT_TRUE(has(firefox + "/storage/default/moz-extension+++own/idb/data.sqlite"));
  EXPECT_TRUE(has(firefox + "/storage/permanent/chrome/idb/data.sqlite"));
}

TEST_F(FirefoxTest, TypedAddressesAreNoLongerMarkedAsTyped) {
  traces.eraseTyped();

  EXPECT_EQ(places("SELECT count(*) FROM moz_inputhistory"), Rows{"0"});
  EXPECT_EQ(places("SELECT max(typed) FROM moz_places"), Rows{"0"});
  EXPECT_EQ(places("SELECT visit_type FROM moz_historyvisits ORDER BY id"),
            (Rows{"1", "1", "1", "7"}));
  EXPECT_EQ(places("SELECT count(*) FROM moz_places"), Rows{"3"});
}

TEST_F(FirefoxTest, FavoritesTakeBookmarksWithTheirIconsAndCopiesAndLeaveWhatWasVisited) {
  erase(SpecialFolder::favorites);

  EXPECT_EQ(places("SELECT count(*) FROM moz_bookmarks"), Rows{"6"});
  EXPECT_EQ(places("SELECT url, foreign_count FROM moz_places ORDER BY url"),
            (Rows{"https://kept.example/b|0", "https://seen.example/a|0"}));
  EXPECT_EQ(filesWith("named.example"), "");
  EXPECT_EQ(filesWith("My bookmark"), "");
  EXPECT_FALSE(has(firefox + "/bookmarkbackups/bookmarks.jsonlz4"));
  EXPECT_EQ(rowsOf(firefox + "/favicons.sqlite", "SELECT count(*) FROM moz_pages_w_icons"),
            Rows{"2"});
}

TEST_F(FirefoxTest, FavoritesAndHistoryTogetherLeaveNoPage) {
  erase(SpecialFolder::favorites);
  erase(SpecialFolder::history);

  EXPECT_EQ(places("SELECT count(*) FROM moz_places"), Rows{"0"});
  EXPECT_EQ(rowsOf(firefox + "/favicons.sqlite", "SELECT count(*) FROM moz_icons"), Rows{"0"});
}

TEST_F(FirefoxTest, OneOptionLeavesTheTracesOfTheOthers) {
  erase(SpecialFolder::cookies);

  EXPECT_EQ(places("SELECT count(*) FROM moz_historyvisits"), Rows{"4"});
  EXPECT_TRUE(has(firefox + "/sessionstore.jsonlz4"));
}

TEST_F(FirefoxTest, NoByteOfWhatWentIsLeftInAnyFile) {
  erase(SpecialFolder::history);
  erase(SpecialFolder::cookies);
  erase(SpecialFolder::internetCache);
  traces.eraseTyped();

  EXPECT_EQ(filesWith("seen"), "");
}

TEST_F(FirefoxTest, PasswordsKeysSettingsAndExtensionsStay) {
  const std::string before = filesWith("kept");

  erase(SpecialFolder::history);
  erase(SpecialFolder::cookies);
  erase(SpecialFolder::internetCache);
  traces.eraseTyped();

  EXPECT_EQ(filesWith("kept"), before);
}

TEST_F(FirefoxTest, WhatIsErasedIsGoneFromTheNextListing) {
  erase(SpecialFolder::history);
  const auto root = folders.openRoot(*folders.path(SpecialFolder::history));
  const auto profile = root->openSubfolder("Firefox (p0)");

  const platform::FolderListing listing = profile->list(pump);

  EXPECT_TRUE(listing.files.empty());
}

TEST_F(FirefoxTest, AJournalThatAKillLeftIsErasedAsWell) {
  const std::string script =
      "PRAGMA journal_mode = WAL; INSERT INTO moz_places (url) VALUES ('https://seen.example/wal')";
  runIn(firefox + "/places.sqlite", script);
  std::filesystem::copy_file(firefox + "/places.sqlite", firefox + "/copy");

  erase(SpecialFolder::history);

  std::filesystem::remove(firefox + "/copy");
  EXPECT_EQ(filesWith("seen.example/wal"), "");
  EXPECT_FALSE(has(firefox + "/places.sqlite-wal"));
}

TEST_F(FirefoxTest, TheDatabaseIsSoundAfterwards) {
  erase(SpecialFolder::history);

  EXPECT_EQ(places("PRAGMA integrity_check"), Rows{"ok"});
  EXPECT_EQ(places("PRAGMA foreign_key_check"), Rows{});
  EXPECT_EQ(places("PRAGMA user_version"), Rows{"0"});
}

}  // namespace
}  // namespace zelvane::test
