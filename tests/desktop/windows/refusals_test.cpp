// What the program finds refusing, missing or spoilt.
#include <cstdlib>
#include <string>

#include <windows.h>

#include "tests/desktop/windows/desktop_test.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

constexpr auto kSettings = R"(Software\Zelvane\Settings)";
constexpr auto kNobody = "D:P";
constexpr auto kReadersOnly = "D:P(A;;KR;;;WD)";

class RefusingSettings : public DesktopTest {
 protected:
  // A choice that is stored by now.
  RefusingSettings() { storeOption(12, "1"); }
};

TEST_F(RefusingSettings, ThoseThatCannotBeReadAreToldAndTheDefaultsShown) {
  const KeyRights rights(kSettings, kNobody);
  const RunningProgram program(world);

  const MessageBox box = program.message();
  EXPECT_EQ(box.title(), "Zelvane");
  EXPECT_EQ(box.text(),
            R"(The settings in "HKEY_CURRENT_USER\Software\Zelvane\Settings" cannot be read. )"
            "Permission denied.");
  box.accept();

  const ProgramWindow window = program.window();
  EXPECT_EQ(window.status(), "Ready");
  EXPECT_FALSE(window.option(Option::clipboard).isTicked());
  EXPECT_TRUE(window.option(Option::cookies).isTicked());
}

TEST_F(RefusingSettings, WhatCannotBeStoredIsShownAllTheSameAndTheRunGoesOn) {
  const KeyRights rights(kSettings, kReadersOnly);
  makeFile(world.cookies() + "\\trace");
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  EXPECT_TRUE(window.option(Option::clipboard).isTicked());

  window.tickOnly({Option::cookies});
  const auto account = window.clean();

  EXPECT_EQ(account, accountOf({accountOf("Erasing Browser Cookies", world.cookies())}));
  EXPECT_FALSE(window.option(Option::clipboard).isTicked());
  EXPECT_FALSE(isThere(world.cookies() + "\\trace"));
  EXPECT_EQ(storedOption(12), "1");
}

TEST_F(RefusingSettings, AnExitThatCannotStoreSaysSoAndEnds) {
  const KeyRights rights(kSettings, kReadersOnly);
  const RunningProgram program(world);

  program.window().pressExit();
  const MessageBox box = program.message();

  EXPECT_EQ(box.title(), "Zelvane");
  EXPECT_EQ(box.text(),
            R"(Error: 70 - The settings in "HKEY_CURRENT_USER\Software\Zelvane\Settings" refuse. )"
            "Permission denied.");
  box.accept();
  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
}

TEST_F(RefusingSettings, ThoseOfANewerVersionAreKeptAsideAndTold) {
  setUserValue(kSettings, "Format", number(2));
  const auto newer = readKeys(kSettings);
  const RunningProgram program(world);

  const MessageBox box = program.message();
  EXPECT_NE(box.text().find(R"("HKEY_CURRENT_USER\Software\Zelvane\Settings.set-aside-1")"),
            std::string::npos)
      << box.text();
  box.accept();

  EXPECT_EQ(program.window().status(), "Ready");
  EXPECT_EQ(readKeys(R"(Software\Zelvane\Settings.set-aside-1)"), newer);
}

using SpoiltSettings = DesktopTest;

TEST_F(SpoiltSettings, AnOptionThatIsNoTextOrNoNumberIsPassedOver) {
  storeOption(12, number(1));
  storeOption(13, RegistryData{REG_BINARY, {std::byte{0xFF}, std::byte{0}}});
  storeOption(14, "rubbish");
  storeOption(15, "1");

  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  EXPECT_FALSE(window.option(Option::clipboard).isTicked());
  EXPECT_FALSE(window.option(Option::runHistory).isTicked());
  EXPECT_FALSE(window.option(Option::scriptDebugging).isTicked());
  EXPECT_TRUE(window.option(Option::scriptErrors).isTicked());
  EXPECT_EQ(window.status(), "Ready");
}

TEST_F(SpoiltSettings, AStartupChoiceThatIsNoNumberIsToldAndEndsTheLoad) {
  for (const auto& [stored, told] :
       {std::pair{"rubbish", "Error: 13 - Type mismatch"}, {"40000", "Error: 6 - Overflow"}}) {
    storeText("Options", "StartUp", stored);
    const RunningProgram program(world);

    const MessageBox box = program.message();
    EXPECT_EQ(box.title(), "Zelvane");
    EXPECT_EQ(box.text(), told);
    box.accept();

    const ProgramWindow window = program.window();
    EXPECT_EQ(window.status(), "");
    EXPECT_FALSE(window.control("chkStartup").isTicked());
    EXPECT_EQ(window.control("txtHomePageURL").text(), "about:blank");
  }
}

class MissingPlaces : public DesktopTest {
 protected:
  MissingPlaces() { makeFile(world.cookies() + "\\trace"); }

  // The task at hand is told of with this path, and the one beside it does its work.
  void expectNextTaskDone(const std::vector<LogLine>& account, const std::vector<LogLine>& first) {
    const auto cookies = accountOf("Erasing Browser Cookies", world.cookies());
    EXPECT_EQ(account, accountOf({first, cookies}));
    EXPECT_FALSE(isThere(world.cookies() + "\\trace"));
  }
};

TEST_F(MissingPlaces, AFolderThatDoesNotExistIsToldOfWithoutAPath) {
  ThrowAwayWorld::nameFolder("Personal", world / "nowhere");

  const auto account = clean({Option::myDocuments, Option::cookies});

  expectNextTaskDone(account, accountOf("Erasing My Documents Files", ""));
  EXPECT_FALSE(isThere(world / "nowhere"));
}

TEST_F(MissingPlaces, AFolderThatIsAFileIsToldOfWithoutAPathAndStays) {
  makeFile(world / "outside/file");
  ThrowAwayWorld::nameFolder("Personal", world / "outside/file");

  const auto account = clean({Option::myDocuments, Option::cookies});

  expectNextTaskDone(account, accountOf("Erasing My Documents Files", ""));
  EXPECT_TRUE(isThere(world / "outside/file"));
}

TEST_F(MissingPlaces, AFolderForTemporaryFilesThatDoesNotExistIsToldOfWithoutAPath) {
  world.nameTemporary(world / "nowhere");

  const auto account = clean({Option::cookies, Option::temporaryFiles});

  EXPECT_EQ(account, accountOf({accountOf("Erasing Browser Cookies", world.cookies()),
                                accountOf("Erasing Windows Temporary Files", "")}));
  EXPECT_FALSE(isThere(world / "nowhere"));
}

TEST_F(MissingPlaces, ARecycleBinThatIsNotThereIsNoHindrance) {
  world.removeTrash();

  const auto account = clean({Option::recycleBin, Option::cookies});

  expectNextTaskDone(account, accountOf("Erasing Contents of Recycle Bin", world.recent()));
  EXPECT_FALSE(isThere(world.trash()));
}

TEST_F(MissingPlaces, HistoriesThatAreGoneAreToldOfAllTheSame) {
  ASSERT_EQ(readKeys(ThrowAwayWorld::kTypedAddresses), std::nullopt);
  ASSERT_EQ(readKeys(ThrowAwayWorld::kRunHistory), std::nullopt);

  const auto account = clean({Option::siteAddresses, Option::runHistory});

  EXPECT_EQ(account.size(), 7U);
  EXPECT_EQ(readKeys(ThrowAwayWorld::kTypedAddresses), std::nullopt);
}

TEST_F(MissingPlaces, AHistoryWithAKeyBelowItStays) {
  const std::string below = std::string(ThrowAwayWorld::kRunHistory) + "\\below";
  setUserText(below, "a", "kept");

  const auto account = clean({Option::cookies, Option::runHistory});

  EXPECT_EQ(account.size(), 7U);
  EXPECT_EQ(userText(below, "a"), "kept");
}

TEST_F(MissingPlaces, TheBrowsersKeysAreNeverMade) {
  for (const char* key : {ThrowAwayWorld::kBrowser, ThrowAwayWorld::kAutoComplete}) {
    replaceKeys(key, std::nullopt);
  }
  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  window.control("cmdHomePage").pressAndWait();
  window.turnTo(TabPage::cleanInternet);
  window.control("chkWebAddress").tick(false);
  window.tickOnly({Option::scriptDebugging, Option::scriptErrors});
  const auto account = window.clean();

  EXPECT_EQ(account, accountOf({}));
  EXPECT_EQ(readKeys(ThrowAwayWorld::kBrowser), std::nullopt);
  EXPECT_EQ(readKeys(ThrowAwayWorld::kAutoComplete), std::nullopt);
  EXPECT_EQ(storedText("HomePage", "StartPage"), "about:blank");
}

}  // namespace
}  // namespace zelvane::test
