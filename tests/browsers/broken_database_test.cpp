#include <fstream>

#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::LeftTrace;
using platform::SpecialFolder;

class BrokenDatabaseTest : public testing::Test, public BrowserBed {
 protected:
  BrokenDatabaseTest() { installFirefox(); }

  const std::string database = firefox + "/places.sqlite";

  std::string content() const {
    std::ifstream file(database, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // Erases the history and expects this one file to be as before, to be named, and the rest to be
  // done.
  void expectLeft() {
    const std::string before = content();

    erase(SpecialFolder::history);

    EXPECT_TRUE(content() == before);
    const std::vector<LeftTrace> told = left.take();
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told[0].profile, "Firefox (p0)");
    EXPECT_NE(told[0].reason.find("places.sqlite"), std::string::npos) << told[0].reason;
    EXPECT_FALSE(has(firefox + "/sessionstore.jsonlz4"));
  }
};

TEST_F(BrokenDatabaseTest, OneThatIsCutIsLeft) {
  std::filesystem::resize_file(database, std::filesystem::file_size(database) / 2);

  expectLeft();
}

TEST_F(BrokenDatabaseTest, OneOfNoBytesIsLeft) {
  std::filesystem::resize_file(database, 0);

  expectLeft();
}

TEST_F(BrokenDatabaseTest, OneOfNoiseIsLeft) {
  std::ofstream(database, std::ios::binary) << std::string(100'000, 'n');

  expectLeft();
}

TEST_F(BrokenDatabaseTest, OneWhoseBookmarksAreDamagedIsLeft) {
  const std::streamoff pageSize = std::stol(rowsOf(database, "PRAGMA page_size")[0]);
  const std::streamoff page = std::stol(
      rowsOf(database, "SELECT rootpage FROM sqlite_master WHERE name = 'moz_bookmarks'")[0]);
  std::fstream file(database, std::ios::binary | std::ios::in | std::ios::out);
  file.seekp((page - 1) * pageSize);
  file << std::string(static_cast<std::size_t>(pageSize), 'n');
  file.close();

  expectLeft();
}

TEST_F(BrokenDatabaseTest, OneOfAnotherSchemaIsLeft) {
  std::filesystem::remove(database);
  makeDatabase(database, "firefox-cookies", "");

  expectLeft();
}

TEST_F(BrokenDatabaseTest, ALinkInItsPlaceIsNotFollowed) {
  const std::string other = home + "/other.sqlite";
  std::filesystem::rename(database, other);
  own->makeLink(database, other);

  expectLeft();

  EXPECT_EQ(rowsOf(other, "SELECT count(*) FROM moz_historyvisits"), std::vector<std::string>{"4"});
}

TEST_F(BrokenDatabaseTest, ATableOfALaterVersionIsLeftInAMixedDatabaseAndNamed) {
  runIn(database, "CREATE TABLE moz_later (text); INSERT INTO moz_later VALUES ('later')");

  erase(SpecialFolder::history);

  EXPECT_EQ(rowsOf(database, "SELECT text FROM moz_later"), std::vector<std::string>{"later"});
  EXPECT_EQ(rowsOf(database, "SELECT count(*) FROM moz_historyvisits"),
            std::vector<std::string>{"0"});
  EXPECT_EQ(left.take(),
            (std::vector<LeftTrace>{
                {"Firefox (p0)", "places.sqlite has a table that is not known, moz_later"}}));
}

TEST_F(BrokenDatabaseTest, AnEmptyTableOfALaterVersionIsNotNamed) {
  runIn(database, "CREATE TABLE moz_later (text)");

  erase(SpecialFolder::history);

  EXPECT_EQ(left.take(), std::vector<LeftTrace>{});
}

}  // namespace
}  // namespace zelvane::test
