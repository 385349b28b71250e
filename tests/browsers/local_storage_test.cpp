// The folder in which Chromium keeps what sites store, after kills in the middle of its erasure.
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::SpecialFolder;

class LocalStorageTest : public testing::Test, public BrowserBed {
 protected:
  LocalStorageTest() { installChromium(); }

  const std::string storage = chromium + "/Local Storage/leveldb";
  const std::string ours = storage + ".zelvane-new";
  const std::string old = storage + ".zelvane-old";

  void expectErased() {
    erase(SpecialFolder::cookies);

    const auto entries = entriesOf(storage);
    EXPECT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries.count("META:chrome-extension://own"), 1U);
    EXPECT_FALSE(has(ours));
    EXPECT_FALSE(has(old));
    EXPECT_EQ(filesWith("META:https://seen"), "");
    EXPECT_EQ(left.take().size(), 0U);
  }
};

// Browsers pack them with snappy.
TEST_F(LocalStorageTest, PackedEntriesOfExtensionsStay) {
  const std::string value(100'000, 'k');
  fs::remove_all(storage);
  makeLevelDb(storage,
              {{"META:chrome-extension://own", value}, {"META:https://seen.example", "1"}});
  const auto bytes = [&] {
    std::uintmax_t sum = 0;
    for (const auto& file : fs::directory_iterator(storage)) {
      if (file.path().extension() == ".ldb") sum += file.file_size();
    }
    return sum;
  };
  ASSERT_GT(bytes(), 0U);
  ASSERT_LT(bytes(), value.size());

  erase(SpecialFolder::cookies);

  EXPECT_EQ(entriesOf(storage),
            (std::map<std::string, std::string>{{"META:chrome-extension://own", value}}));
}

TEST_F(LocalStorageTest, AnUnfinishedCopyIsRemovedAndMadeAnew) {
  makeLevelDb(ours, {{"META:https://seen.example", "half"}});

  expectErased();
}

TEST_F(LocalStorageTest, AnOldOneBesideTheNewIsRemoved) {
  fs::copy(storage, old);

  expectErased();
}

TEST_F(LocalStorageTest, AnOldOneWithoutAnyOtherIsPutBackByTheNextLook) {
  fs::rename(storage, old);
  makeLevelDb(ours, {{"META:chrome-extension://own", "kept"}});

  const auto root = folders.openRoot(*folders.path(SpecialFolder::cookies));
  root->openSubfolder("Chromium (Default)")->list(pump);

  EXPECT_EQ(entriesOf(storage).size(), 5U);
  EXPECT_FALSE(has(old));
}

TEST_F(LocalStorageTest, AnOldOneWithoutAnyOtherIsErasedAsIfNothingHadHappened) {
  fs::rename(storage, old);
  makeLevelDb(ours, {{"META:chrome-extension://own", "kept"}});

  expectErased();
}

TEST_F(LocalStorageTest, WhatABrowserBeganAfterAKillCounts) {
  fs::rename(storage, old);
  makeLevelDb(storage, {{"VERSION", "1"}, {"META:https://seen.example", "again"}});

  erase(SpecialFolder::cookies);

  EXPECT_EQ(entriesOf(storage).size(), 1U);
  EXPECT_FALSE(has(old));
}

TEST_F(LocalStorageTest, ALinkInItsPlaceIsNotFollowed) {
  const std::string elsewhere = home + "/elsewhere";
  fs::rename(storage, elsewhere);
  own->makeLink(storage, elsewhere);

  erase(SpecialFolder::cookies);

  EXPECT_EQ(entriesOf(elsewhere).size(), 5U);
  EXPECT_FALSE(left.take().empty());
}

}  // namespace
}  // namespace zelvane::test
