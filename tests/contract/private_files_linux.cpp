#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/folder_lock.h"
#include "platform/linux/json_text.h"
#include "platform/linux/private_file.h"
#include "platform/linux/private_folder.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using platform::Descriptor;
using platform::Error;
using platform::ErrorNumber;
using platform::FolderLock;
using platform::PrivateFile;

ErrorNumber numberOf(const std::function<void()>& deed) {
  try {
    deed();
  } catch (const Error& error) {
    return error.number();
  }
  return {};
}

TEST(PrivateFolder, IsMadeWithThoseAboveItForItsUserAlone) {
  ThrowAwayFolder folder;

  EXPECT_TRUE(platform::makePrivateFolder(folder / "a/b/c").isOpen());

  for (const char* name : {"a", "a/b", "a/b/c"}) {
    EXPECT_EQ(fs::status(folder / name).permissions(), fs::perms(0700)) << name;
  }
}

TEST(PrivateFolder, ThatIsMissingIsNotMadeByOpeningIt) {
  ThrowAwayFolder folder;

  EXPECT_EQ(numberOf([&] { platform::openPrivateFolder(folder / "a"); }),
            ErrorNumber::pathNotFound);
  EXPECT_FALSE(folder.has("a"));
}

// Given away where that is allowed; otherwise one that the system owns.
std::string folderOfAnotherUser(const ThrowAwayFolder& folder) {
  const uid_t another = geteuid() + 1;
  const bool isGivenAway = chown(folder.path().c_str(), another, another) == 0;
  return isGivenAway ? folder.path().string() : "/usr";
}

TEST(PrivateFolder, OfAnotherUserIsRefused) {
  ThrowAwayFolder folder;
  const std::string path = folderOfAnotherUser(folder);

  EXPECT_EQ(numberOf([&] { platform::openPrivateFolder(path); }), ErrorNumber::permissionDenied);
}

TEST(PrivateFolder, AFileInItsPlaceIsRefused) {
  ThrowAwayFolder folder;
  folder.write("a");

  EXPECT_EQ(numberOf([&] { platform::makePrivateFolder(folder / "a"); }), ErrorNumber::accessError);
}

TEST(PrivateFolder, OnlyRightsOfOthersAreTakenAway) {
  ThrowAwayFolder folder;
  fs::create_directory(folder / "a");
  fs::permissions(folder / "a", fs::perms(0575));

  platform::openPrivateFolder(folder / "a");

  EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms(0500));
}

TEST(FolderLock, ThatIsHeldIsWaitedForAsLongAsPatienceLasts) {
  ThrowAwayFolder folder;
  const Descriptor open = platform::openPrivateFolder(folder.path());
  const FolderLock held(open);

  EXPECT_EQ(numberOf([&] { FolderLock(open, 0ms); }), ErrorNumber::permissionDenied);
}

TEST(FolderLock, ThatIsGivenBackIsFree) {
  ThrowAwayFolder folder;
  const Descriptor open = platform::openPrivateFolder(folder.path());
  { const FolderLock held(open); }

  EXPECT_NO_THROW(FolderLock(open, 0ms));
}

TEST(FolderLock, OfAKilledProcessIsFree) {
  ThrowAwayFolder folder;
  const Descriptor open = platform::openPrivateFolder(folder.path());
  ChildProcess other([&](const Say& say) {
    const FolderLock held(open);
    say("held");
    stayUntilKilled();
  });
  ASSERT_EQ(other.hearLine(), "held");

  EXPECT_THROW(FolderLock(open, 0ms), Error);
  other.kill();
  EXPECT_NO_THROW(FolderLock(open, 0ms));
}

TEST(FolderLock, IsWaitedForUntilItsHolderGoes) {
  ThrowAwayFolder folder;
  const Descriptor open = platform::openPrivateFolder(folder.path());
  ChildProcess first([&](const Say& say) {
    const FolderLock held(open);
    say("held");
    stayUntilKilled();
  });
  ASSERT_EQ(first.hearLine(), "held");
  ChildProcess second([&](const Say& say) {
    say("waits");
    const FolderLock held(open, 60s);
    say("holds");
  });
  ASSERT_EQ(second.hearLine(), "waits");

  first.kill();

  EXPECT_EQ(second.hearLine(), "holds");
}

TEST(PrivateFile, AChangeThatFailsOrMakesNothingLeavesTheFileAsItWas) {
  ThrowAwayFolder folder;
  PrivateFile file(folder / "own", "file");
  file.update([](const auto&) { return "first"; });

  file.update([](const auto&) { return std::nullopt; });
  EXPECT_EQ(file.read(), "first");
  EXPECT_THROW(file.update([](const auto&) -> std::optional<std::string> { throw Error({}); }),
               Error);
  EXPECT_EQ(file.read(), "first");
}

TEST(PrivateFile, SixteenMebibytesAreRead) {
  ThrowAwayFolder folder;
  PrivateFile file(folder / "own", "file");
  folder.write("own/file", "");

  fs::resize_file(folder / "own/file", PrivateFile::kLimit);
  EXPECT_EQ(file.read()->size(), PrivateFile::kLimit);

  fs::resize_file(folder / "own/file", PrivateFile::kLimit + 1);
  EXPECT_EQ(numberOf([&] { file.read(); }), ErrorNumber::accessError);
}

TEST(PrivateFile, APipeInItsPlaceIsRefusedWithoutWaiting) {
  ThrowAwayFolder folder;
  PrivateFile file(folder / "own", "file");
  fs::create_directory(folder / "own");
  ASSERT_EQ(mkfifo((folder / "own/file").c_str(), 0600), 0);

  EXPECT_EQ(numberOf([&] { file.read(); }), ErrorNumber::accessError);
}

TEST(PrivateFile, TheErrorNamesTheFile) {
  ThrowAwayFolder folder;
  PrivateFile file(folder / "own", "file");
  fs::create_directories(folder / "own/file");

  try {
    file.read();
    FAIL() << "a folder was read";
  } catch (const Error& error) {
    EXPECT_NE(error.text().find(folder / "own/file"), std::string::npos);
  }
}

TEST(PrivateFile, TheErrorOfAWriteNamesTheFile) {
  ThrowAwayFolder folder;
  PrivateFile file(folder / "own", "file");
  fs::create_directories(folder / "own/.lock");
  fs::permissions(folder / "own", fs::perms::owner_all);

  try {
    file.update([](const auto&) { return "text"; });
    FAIL() << "a file was written without its lock";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), ErrorNumber::accessError);
    EXPECT_NE(error.text().find(folder / "own/file"), std::string::npos);
  }
}

TEST(JsonText, ValidTextStaysAsItIs) {
  EXPECT_EQ(platform::toJsonText("Zürich, 東京, 😀"), "Zürich, 東京, 😀");
}

TEST(JsonText, AByteThatIsNoTextBecomesTheCharacterDrawnInTheHeader) {
  EXPECT_EQ(platform::toJsonText("caf\xE9"), "caf\xF4\x8F\xBB\xA9");
  EXPECT_EQ(platform::fromJsonText("caf\xF4\x8F\xBB\xA9"), "caf\xE9");
}

TEST(JsonText, EveryPairOfBytesComesBack) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes = {static_cast<char>(first), static_cast<char>(second)};
      ASSERT_EQ(platform::fromJsonText(platform::toJsonText(bytes)), bytes) << first << second;
    }
  }
}

}  // namespace
}  // namespace zelvane::test
