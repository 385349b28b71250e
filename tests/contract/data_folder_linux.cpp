// That the data folder is complete at every start, and nothing of its user's is lost by that.
#include <filesystem>

#include <gtest/gtest.h>

#include "platform/linux/data_folder.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;

class DataFolderTest : public testing::Test {
 protected:
  void refill() const { platform::refillDataFolder(folder / "share/zelvane"); }

  const ThrowAwayFolder folder;
};

TEST_F(DataFolderTest, IsMadeForItsUserAloneWithNoSoundChosenAndTheUsualOne) {
  refill();

  EXPECT_EQ(fs::status(folder / "share/zelvane").permissions(), fs::perms::owner_all);
  EXPECT_EQ(folder.read("share/zelvane/wavpath.txt"), "\r\n");
  const std::string sound = folder.read("share/zelvane/ding.wav");
  EXPECT_EQ(sound.substr(0, 4), "RIFF");
  EXPECT_EQ(sound.substr(8, 8), "WAVEfmt ");
  EXPECT_GT(sound.size(), 50'000U);
}

TEST_F(DataFolderTest, WhatIsThereStays) {
  folder.write("share/zelvane/wavpath.txt", "/my.wav\r\n");
  folder.write("share/zelvane/ding.wav", "");
  folder.write("share/zelvane/other", "other");

  refill();

  EXPECT_EQ(folder.read("share/zelvane/wavpath.txt"), "/my.wav\r\n");
  EXPECT_EQ(folder.read("share/zelvane/ding.wav"), "");
  EXPECT_EQ(folder.read("share/zelvane/other"), "other");
}

TEST_F(DataFolderTest, OneMissingFileIsPutBack) {
  refill();
  fs::remove(folder / "share/zelvane/ding.wav");
  folder.write("share/zelvane/wavpath.txt", "/my.wav\r\n");

  refill();

  EXPECT_TRUE(folder.has("share/zelvane/ding.wav"));
  EXPECT_EQ(folder.read("share/zelvane/wavpath.txt"), "/my.wav\r\n");
}

TEST_F(DataFolderTest, NoLinkIsFollowedOrReplaced) {
  fs::create_directories(folder / "share/zelvane");
  fs::create_symlink(folder / "elsewhere", folder / "share/zelvane/wavpath.txt");

  refill();

  EXPECT_FALSE(folder.has("elsewhere"));
  EXPECT_TRUE(fs::is_symlink(folder / "share/zelvane/wavpath.txt"));
  EXPECT_TRUE(folder.has("share/zelvane/ding.wav"));
}

TEST_F(DataFolderTest, ALinkInTheFoldersPlaceIsNotFollowed) {
  fs::create_directories(folder / "elsewhere");
  fs::create_directories(folder / "share");
  fs::create_symlink(folder / "elsewhere", folder / "share/zelvane");

  refill();

  EXPECT_TRUE(fs::is_empty(folder / "elsewhere"));
}

TEST_F(DataFolderTest, WhatCannotBeMadeIsLeftOut) {
  folder.write("share", "a file in the folder's place");

  EXPECT_NO_THROW(refill());
}

TEST_F(DataFolderTest, AFolderThatItsUserMayNotChangeIsLeftAsItIs) {
  fs::create_directories(folder / "share/zelvane");
  fs::permissions(folder / "share/zelvane", fs::perms::owner_read | fs::perms::owner_exec);
  ChildProcess child([this](const Say& say) {
    giveUpPrivileges();
    refill();
    say("went on");
  });

  EXPECT_EQ(child.hearAll(), "went on\n");
  EXPECT_TRUE(fs::is_empty(folder / "share/zelvane"));
}

}  // namespace
}  // namespace zelvane::test
