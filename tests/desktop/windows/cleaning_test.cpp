// A cleaning from its button to its end, on all the traces that a user leaves.
#include <string>

#include "tests/desktop/windows/desktop_test.h"
#include "tests/desktop/windows/sample_files.h"
#include "tests/desktop/windows/waiting.h"
#include "tests/support/windows/clipboard_user.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

constexpr std::initializer_list<Option> kEverything{
    Option::guardHomePage, Option::indexDat,   Option::siteAddresses,   Option::recentFiles,
    Option::myDocuments,   Option::recycleBin, Option::browserCache,    Option::cookies,
    Option::favorites,     Option::history,    Option::freeSpace,       Option::temporaryFiles,
    Option::clipboard,     Option::runHistory, Option::scriptDebugging, Option::scriptErrors};

class Cleaning : public DesktopTest {
 protected:
  Cleaning() {
    setUserText(ThrowAwayWorld::kTypedAddresses, "url1", "https://example.org/");
    setUserText(ThrowAwayWorld::kRunHistory, "a", "calculator\\1");
  }

  SampleFiles files{world};
};

TEST_F(Cleaning, ErasesEveryTraceThatIsTicked) {
  ASSERT_EQ(existing(files.traces), files.traces);

  clean(kEverything);

  EXPECT_EQ(existing(files.traces), std::vector<std::string>());
  EXPECT_EQ(readKeys(ThrowAwayWorld::kTypedAddresses), std::nullopt);
  EXPECT_EQ(readKeys(ThrowAwayWorld::kRunHistory), std::nullopt);
}

TEST_F(Cleaning, LeavesHiddenAndOpenFilesTheirFoldersAndWhatIsOutside) {
  ASSERT_EQ(existing(files.kept), files.kept);

  clean(kEverything);

  EXPECT_EQ(existing(files.kept), files.kept);
}

TEST_F(Cleaning, ErasesNothingThatIsNotTicked) {
  const auto stored = readKeys(ThrowAwayWorld::kRunHistory);

  const auto account = clean({Option::guardHomePage, Option::indexDat, Option::freeSpace});

  EXPECT_EQ(account, accountOf({}));
  EXPECT_EQ(existing(files.traces), files.traces);
  EXPECT_EQ(readKeys(ThrowAwayWorld::kRunHistory), stored);
}

TEST_F(Cleaning, TellsOfEachTaskInItsOrderAndColours) {
  const auto account = clean(kEverything);

  EXPECT_EQ(account,
            accountOf({
                accountOf("Erasing 'Auto Complete' Site Addresses",
                          R"(HKEY_CURRENT_USER\Software\Microsoft\Internet Explorer\TypedURLs)"),
                accountOf("Erasing Recent Files", world.recent()),
                accountOf("Erasing My Documents Files", world.documents()),
                accountOf("Erasing Contents of Recycle Bin", world.recent()),
                accountOf("Erasing Internet Cashe", world.cache()),
                accountOf("Erasing Browser Cookies", world.cookies()),
                accountOf("Erasing Browser Favorites", world.favorites()),
                accountOf("Erasing Internet History", world.history()),
                accountOf("Erasing Windows Temporary Files", world.temporary() + "\\"),
                accountOf("Erasing Windows Start Run History",
                          R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion)"
                          R"(\Explorer\RunMRU)"),
            }));
}

TEST_F(Cleaning, EndsOnTheFirstPageReadyAndWithTheEndOfTheLogInSight) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tickOnly(kEverything);
  window.turnTo(TabPage::cleanInternet);

  window.control("Command2").pressAndWait();

  EXPECT_EQ(window.page(), TabPage::main);
  EXPECT_EQ(window.status(), "Ready");
  EXPECT_EQ(window.log().back(), (LogLine{"Done", "black"}));
  EXPECT_TRUE(logShowsItsEnd(window.control("rtfMessage").window()));
  EXPECT_EQ(existing(files.traces), std::vector<std::string>());
}

TEST_F(Cleaning, CleanComputerErasesWhatIsTickedOnTheOtherPageToo) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tickOnly({Option::cookies});
  window.turnTo(TabPage::cleanComputer);

  window.control("Command3").pressAndWait();

  EXPECT_EQ(window.log(), accountOf({accountOf("Erasing Browser Cookies", world.cookies())}));
  EXPECT_FALSE(isThere(world.cookies() + "\\user@example[1].txt"));
}

TEST_F(Cleaning, TheSecondRunTellsOfItselfAlone) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tickOnly({Option::siteAddresses, Option::cookies});
  const auto first = window.clean();

  const auto second = window.clean();

  EXPECT_EQ(first.size(), 7U);
  EXPECT_EQ(second, first);
}

TEST_F(Cleaning, EmptyingTheRecycleBinLeavesTheRecentDocuments) {
  const auto account = clean({Option::recycleBin});

  EXPECT_EQ(account, accountOf({accountOf("Erasing Contents of Recycle Bin", world.recent())}));
  EXPECT_FALSE(isThere(world.trash() + "\\files\\old plan.txt"));
  EXPECT_TRUE(isThere(world.recent() + "\\letter to the bank.lnk"));
}

TEST_F(Cleaning, TheStartOfTheRunIsShownAtOnceAndStoredASecondLater) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tickOnly({Option::cookies});

  window.clean();

  const std::string shown = window.control("lblLastRunTime").text();
  EXPECT_EQ(shown.size(), std::string("hh:mm:ss").size()) << shown;
  const auto stored =
      waitUntil("the time is stored", [] { return storedText("Schedule", "LastRunTime"); });
  EXPECT_EQ(stored, shown);
}

TEST_F(Cleaning, EmptiesTheClipboardWithoutAWord) {
  const ClipboardUser user;
  user.copy("a password");

  const auto account = clean({Option::clipboard});

  EXPECT_EQ(account, accountOf({}));
  EXPECT_EQ(user.pasted(), "");
}

TEST_F(Cleaning, LeavesTheClipboardThatIsNotTicked) {
  const ClipboardUser user;
  user.copy("a password");

  clean({Option::cookies});

  EXPECT_EQ(user.pasted(), "a password");
}

TEST_F(Cleaning, SetsTheScriptOptionsWithoutAWord) {
  const auto account = clean({Option::scriptDebugging, Option::scriptErrors});

  EXPECT_EQ(account, accountOf({}));
  EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Disable Script Debugger"), "yes");
  EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Disable Script DebuggerX"), "yes");
}

}  // namespace
}  // namespace zelvane::test
