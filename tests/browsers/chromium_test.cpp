#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::SpecialFolder;
using Rows = std::vector<std::string>;

class ChromiumTest : public testing::Test, public BrowserBed {
 protected:
  ChromiumTest() { installChromium(); }
};

TEST_F(ChromiumTest, HistoryTakesEveryTableButItsVersion) {
  erase(SpecialFolder::history);

  for (const char* table : {"urls", "visits", "keyword_search_terms", "downloads_url_chains",
                            "journeys", "of_a_later_version"}) {
    EXPECT_EQ(rowsOf(chromium + "/History", std::string("SELECT count(*) FROM ") + table),
              Rows{"0"})
        << table;
  }
  EXPECT_EQ(rowsOf(chromium + "/History", "SELECT value FROM meta"), Rows{"70"});
}

TEST_F(ChromiumTest, IconsOfBookmarkedPagesStay) {
  erase(SpecialFolder::history);

  EXPECT_EQ(rowsOf(chromium + "/Favicons", "SELECT page_url FROM icon_mapping"),
            Rows{"https://kept.example/b"});
  EXPECT_EQ(rowsOf(chromium + "/Favicons", "SELECT url FROM favicons"),
            Rows{"https://kept.example/favicon.ico"});
  EXPECT_EQ(rowsOf(chromium + "/Favicons", "SELECT image_data FROM favicon_bitmaps"), Rows{"kept"});
}

TEST_F(ChromiumTest, WithoutReadableBookmarksNoIconIsTouched) {
  writeFile(chromium + "/Bookmarks", "{");

  erase(SpecialFolder::history);

  EXPECT_EQ(rowsOf(chromium + "/Favicons", "SELECT count(*) FROM icon_mapping"), Rows{"2"});
}

TEST_F(ChromiumTest, CookiesTakePermissionsAndStorageOfSitesAndNoneOfExtensions) {
  erase(SpecialFolder::cookies);

  EXPECT_FALSE(has(chromium + "/IndexedDB/https_seen.example_0.indexeddb.leveldb"));
  EXPECT_TRUE(has(chromium + "/IndexedDB/chrome-extension_own_0.indexeddb.leveldb/LOG"));
  EXPECT_EQ(filesWith("https://seen.example:443"), "");
  EXPECT_NE(filesWith("chrome-extension://own").find("/Preferences\n"), std::string::npos);
}

TEST_F(ChromiumTest, FavoritesTakeBookmarksAndLeaveTheirFolders) {
  writeFile(chromium + "/Bookmarks.bak", "kept.example");

  erase(SpecialFolder::favorites);

  EXPECT_EQ(read(chromium + "/Bookmarks"), R"({"roots":{"bookmark_bar":{"children":[]}}})");
  EXPECT_FALSE(has(chromium + "/Bookmarks.bak"));
  EXPECT_EQ(rowsOf(chromium + "/History", "SELECT count(*) FROM urls"), Rows{"2"});
}

TEST_F(ChromiumTest, LocalStorageOfExtensionsStays) {
  erase(SpecialFolder::cookies);

  const auto entries = entriesOf(chromium + "/Local Storage/leveldb");
  EXPECT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries.count("VERSION"), 1U);
  EXPECT_EQ(entries.count("META:chrome-extension://own"), 1U);
}

TEST_F(ChromiumTest, ADamagedLocalStorageIsLeftAndNamed) {
  for (const auto& entry :
       std::filesystem::directory_iterator(chromium + "/Local Storage/leveldb")) {
    if (entry.path().extension() == ".ldb") std::filesystem::resize_file(entry.path(), 100);
  }

  erase(SpecialFolder::cookies);

  EXPECT_FALSE(left.take().empty());
  EXPECT_FALSE(has(chromium + "/IndexedDB/https_seen.example_0.indexeddb.leveldb"));
}

TEST_F(ChromiumTest, TypedAddressesTakePredictionsAndCounts) {
  traces.eraseTyped();

  EXPECT_EQ(rowsOf(chromium + "/Network Action Predictor",
                   "SELECT count(*) FROM network_action_predictor"),
            Rows{"0"});
  EXPECT_EQ(rowsOf(chromium + "/History", "SELECT max(typed_count), count(*) FROM urls"),
            Rows{"0|2"});
}

TEST_F(ChromiumTest, NoByteOfWhatWentIsLeftInAnyFile) {
  erase(SpecialFolder::history);
  erase(SpecialFolder::cookies);
  erase(SpecialFolder::internetCache);
  traces.eraseTyped();

  EXPECT_EQ(filesWith("seen"), "");
}

TEST_F(ChromiumTest, BookmarksPasswordsAndSettingsStay) {
  erase(SpecialFolder::history);
  erase(SpecialFolder::cookies);
  erase(SpecialFolder::internetCache);
  traces.eraseTyped();

  const std::string kept = filesWith("kept");
  for (const char* name : {"Bookmarks", "Login Data", "Secure Preferences", "Extension Cookies",
                           "Web Data", "Preferences"}) {
    EXPECT_NE(kept.find("Default/" + std::string(name) + "\n"), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace zelvane::test
