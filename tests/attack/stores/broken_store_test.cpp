// Something else lies where a store should: half of it, noise, another kind of thing.
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include "tests/attack/stores/plain_rights.h"
#include "tests/attack/stores/used_home.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;

class BrokenStore : public testing::TestWithParam<Store> {
 protected:
  const Store store = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Each, BrokenStore, testing::Values(Store::settings, Store::hive),
                         [](const auto& instance) {
                           return instance.param == Store::settings ? "Settings" : "Hive";
                         });

TEST_P(BrokenStore, NoneThatIsSoundIsTold) {
  const UsedHome home;

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 0, "");
  expectTold(seen.toldLater, 0, "");
  expectThatTheProgramWorked(seen, home);
  expectThatAllWasStored(store, home);
}

TEST_P(BrokenStore, CutAnywhereIsSetAside) {
  const UsedHome home;
  const std::string whole = nlohmann::json::parse(soundContentOf(store)).dump();
  for (std::size_t length = 0; length < whole.size() && !HasFailure(); ++length) {
    SCOPED_TRACE(length);
    home.folder.write(fileOf(store), whole.substr(0, length));

    const Visit seen = shortVisit(home);

    expectTold(seen.toldAtTheStart, 1, home.folder / setAsideFileOf(store));
    expectTold(seen.toldLater, 0, "");
    EXPECT_EQ(seen.statusAfterTheLoad, "Ready");
    EXPECT_TRUE(seen.ended);
    EXPECT_EQ(home.folder.read(setAsideFileOf(store)), whole.substr(0, length));
    fs::remove(home.folder / setAsideFileOf(store));
  }
  expectThatAllIsWellAgain(home);
}

TEST_P(BrokenStore, FilledWithNoiseIsSetAside) {
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string noise(random() % 5'000, '\0');
    for (char& c : noise) c = static_cast<char>(random());
    const UsedHome home;
    home.folder.write(fileOf(store), noise);

    const Visit seen = visit(home);

    expectSetAside(store, noise, seen, home);
  }
}

TEST_P(BrokenStore, WithNoiseInItsMiddleIsSetAside) {
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string spoilt = soundContentOf(store);
    spoilt.replace(random() % (spoilt.size() - 8), 8, std::string("\0\xFF\x80{\"\n\\\x01", 8));
    const UsedHome home;
    home.folder.write(fileOf(store), spoilt);

    const Visit seen = visit(home);

    expectSetAside(store, spoilt, seen, home);
  }
}

TEST_P(BrokenStore, OfANewerFormatIsSetAside) {
  const UsedHome home;
  const std::string newer = R"({"format": 2, "all": ["is", "different"]})";
  home.folder.write(fileOf(store), newer);

  const Visit seen = visit(home);

  expectSetAside(store, newer, seen, home);
}

TEST_P(BrokenStore, OfAHundredMegabytesIsSetAsideAndNotEvenCopied) {
  const UsedHome home;
  constexpr std::uintmax_t kSize = 100'000'000;
  fs::resize_file(home.path(store), kSize);
  struct stat before {};
  stat(home.path(store).c_str(), &before);

  const Visit seen = visit(home);

  struct stat after {};
  const std::string keptAs = home.folder / setAsideFileOf(store);
  ASSERT_EQ(stat(keptAs.c_str(), &after), 0);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_size, before.st_size);
  EXPECT_EQ(after.st_blocks, before.st_blocks);
  expectTold(seen.toldAtTheStart, 1, keptAs);
  expectTold(seen.toldLater, 0, "");
  expectThatTheProgramWorked(seen, home);
  expectThatAllIsWellAgain(home);
}

TEST_P(BrokenStore, SetAsideAgainItGetsAnotherName) {
  const UsedHome home;
  home.folder.write(fileOf(store), "first");
  visit(home);
  home.folder.write(fileOf(store), "second");

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 1, home.path(store) + ".set-aside-2");
  EXPECT_EQ(home.folder.read(fileOf(store) + ".set-aside-1"), "first");
  EXPECT_EQ(home.folder.read(fileOf(store) + ".set-aside-2"), "second");
}

TEST_P(BrokenStore, WhileTheProgramRunsItIsNotWrittenOverAndSetAsideByTheNextStart) {
  const UsedHome home;

  const Visit seen = visit(home, [&] { home.folder.write(fileOf(store), "broken meanwhile"); });

  expectTold(seen.toldAtTheStart, 0, "");
  expectTold(seen.toldLater, store == Store::settings ? kSavesThatTell : 0, home.path(store));
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read(fileOf(store)), "broken meanwhile");
  expectTold(visit(home).toldAtTheStart, 1, home.folder / setAsideFileOf(store));
  EXPECT_EQ(home.folder.read(setAsideFileOf(store)), "broken meanwhile");
}

TEST_P(BrokenStore, AFolderInItsPlaceStays) {
  const UsedHome home;
  fs::remove(home.path(store));
  home.folder.write(fileOf(store) + "/inner", "something of the user's");

  const Visit seen = visit(home);

  expectRefused(store, seen, home);
  EXPECT_EQ(home.folder.read(fileOf(store) + "/inner"), "something of the user's");
}

TEST_P(BrokenStore, ALinkToAFileInItsPlaceStaysAndSoDoesTheFile) {
  const UsedHome home;
  home.folder.write("elsewhere.json", soundContentOf(store));
  fs::remove(home.path(store));
  fs::create_symlink(home.folder / "elsewhere.json", home.path(store));

  const Visit seen = visit(home);

  expectRefused(store, seen, home);
  EXPECT_EQ(home.folder.read("elsewhere.json"), soundContentOf(store));
  EXPECT_EQ(fs::read_symlink(home.path(store)), home.folder / "elsewhere.json");
}

TEST_P(BrokenStore, ALinkToNothingInItsPlaceStaysAndMakesNothing) {
  const UsedHome home;
  fs::remove(home.path(store));
  fs::create_symlink(home.folder / "nothing", home.path(store));

  const Visit seen = visit(home);

  expectRefused(store, seen, home);
  EXPECT_FALSE(home.folder.has("nothing"));
  EXPECT_EQ(fs::read_symlink(home.path(store)), home.folder / "nothing");
}

TEST_P(BrokenStore, ALinkToItselfInItsPlaceStays) {
  const UsedHome home;
  fs::remove(home.path(store));
  fs::create_symlink(home.path(store), home.path(store));

  const Visit seen = visit(home);

  expectRefused(store, seen, home);
  EXPECT_EQ(fs::read_symlink(home.path(store)), home.path(store));
}

TEST_P(BrokenStore, APipeInItsPlaceStaysAndStopsNobody) {
  const UsedHome home;
  fs::remove(home.path(store));
  ASSERT_EQ(mkfifo(home.path(store).c_str(), 0600), 0);

  const Visit seen = visit(home);

  expectRefused(store, seen, home);
  EXPECT_TRUE(fs::is_fifo(home.path(store)));
}

TEST_P(BrokenStore, ThatMayNotBeReadStaysAsItIs) {
  const UsedHome home;
  const PlainRights plain;
  fs::permissions(home.path(store), fs::perms::none);

  const Visit seen = visit(home);

  expectRefused(store, seen, home);
  EXPECT_EQ(fs::status(home.path(store)).permissions(), fs::perms::none);
  fs::permissions(home.path(store), fs::perms(0600));
  EXPECT_EQ(home.folder.read(fileOf(store)), soundContentOf(store));
  expectThatAllIsWellAgain(home);
}

TEST(BrokenStores, AreToldEachInABoxSettingsFirst) {
  const UsedHome home;
  home.folder.write(fileOf(Store::settings), "neither");
  home.folder.write(fileOf(Store::hive), "nor");

  const Visit seen = visit(home);

  ASSERT_EQ(seen.toldAtTheStart.size(), 2U);
  expectTold({seen.toldAtTheStart[0]}, 1, home.folder / setAsideFileOf(Store::settings));
  expectTold({seen.toldAtTheStart[1]}, 1, home.folder / setAsideFileOf(Store::hive));
  expectTold(seen.toldLater, 0, "");
  expectThatTheProgramWorked(seen, home);
  expectThatAllIsWellAgain(home);
}

TEST(BrokenStores, ALinkInPlaceOfTheirFolderIsNotFollowed) {
  const UsedHome home;
  fs::rename(home.folder / kStoreFolder, home.folder / "elsewhere");
  fs::create_directory_symlink(home.folder / "elsewhere", home.folder / kStoreFolder);

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 2, home.folder / kStoreFolder);
  expectTold(seen.toldLater, kSavesThatTell, home.folder / kStoreFolder);
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read("elsewhere/settings.json"), soundContentOf(Store::settings));
  EXPECT_EQ(home.folder.read("elsewhere/registry.json"), soundContentOf(Store::hive));
  EXPECT_FALSE(home.folder.has("elsewhere/win.ini"));
}

TEST(BrokenStores, AFileInPlaceOfTheirFolderStays) {
  const UsedHome home;
  fs::remove_all(home.folder / kStoreFolder);
  home.folder.write(kStoreFolder, "something of the user's");

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 2, home.folder / kStoreFolder);
  expectTold(seen.toldLater, kSavesThatTell, home.folder / kStoreFolder);
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read(kStoreFolder), "something of the user's");
}

TEST(BrokenStores, AFolderInPlaceOfTheirLockKeepsThemFromBeingWritten) {
  const UsedHome home;
  home.folder.write(std::string(kStoreFolder) + "/.lock/inner");

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 0, "");
  expectTold(seen.toldLater, kSavesThatTell, home.path(Store::settings));
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read(fileOf(Store::settings)), soundContentOf(Store::settings));
  EXPECT_EQ(home.folder.read(fileOf(Store::hive)), soundContentOf(Store::hive));
}

TEST(BrokenStores, AProfileThatIsNoFileIsNotTold) {
  const UsedHome home;
  home.folder.write(std::string(kStoreFolder) + "/win.ini/inner");

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 0, "");
  expectTold(seen.toldLater, 0, "");
  expectThatTheProgramWorked(seen, home);
  EXPECT_TRUE(home.folder.has(std::string(kStoreFolder) + "/win.ini/inner"));
}

TEST(BrokenStores, WhatAKilledProgramLeftGoesWithTheNextGoodSave) {
  const UsedHome home;
  home.folder.write(std::string(kStoreFolder) + "/.zelvane-0123456789abcdef0123456789abcdef");

  expectThatAllIsWellAgain(home);
}

}  // namespace
}  // namespace zelvane::test
