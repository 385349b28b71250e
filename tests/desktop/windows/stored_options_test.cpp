// What the user chooses, from one start to the next.
#include <cstdlib>

#include "tests/desktop/windows/desktop_test.h"

namespace zelvane::test {
namespace {

using StoredOptions = DesktopTest;

TEST_F(StoredOptions, ATickIsStoredAtOnceAndThereAtTheNextStart) {
  {
    const RunningProgram program(world);
    program.window().tick(Option::clipboard);
    EXPECT_EQ(storedOption(12), "1");
    program.kill();
  }

  const RunningProgram program(world);

  EXPECT_TRUE(program.window().option(Option::clipboard).isTicked());
}

TEST_F(StoredOptions, EveryTickIsThereAgainAfterAnOrderlyEnd) {
  std::vector<Option> ticked;
  {
    const RunningProgram program(world);
    const ProgramWindow window = program.window();
    // Each other than at a first start.
    window.tickOnly({Option::myDocuments, Option::browserCache, Option::favorites,
                     Option::clipboard, Option::runHistory, Option::scriptDebugging,
                     Option::scriptErrors});
    ticked = window.ticked();
    window.pressExit();
    ASSERT_EQ(program.endStatus(), EXIT_SUCCESS);
  }

  const RunningProgram program(world);

  EXPECT_EQ(ticked.size(), 7U);
  EXPECT_EQ(program.window().ticked(), ticked);
}

TEST_F(StoredOptions, AStoredThreeIsNothingStored) {
  storeOption(2, "3");
  storeOption(12, "3");

  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  EXPECT_TRUE(window.option(Option::siteAddresses).isTicked());
  EXPECT_FALSE(window.option(Option::clipboard).isTicked());
}

TEST_F(StoredOptions, DefaultSetsTheUsualTicksAndStoresOnlyThoseThatChange) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tick(Option::cookies, false);
  window.tick(Option::browserCache);

  window.control("cmdDefaultSettings").pressAndWait();

  EXPECT_TRUE(window.option(Option::cookies).isTicked());
  EXPECT_FALSE(window.option(Option::browserCache).isTicked());
  EXPECT_EQ(storedOption(7), "1");
  EXPECT_EQ(storedOption(6), "0");
  EXPECT_EQ(storedOption(9), std::nullopt);
}

TEST_F(StoredOptions, TheHomePageIsStoredAndImposedAgainAtTheNextStart) {
  {
    const RunningProgram program(world);
    const ProgramWindow window = program.window();
    window.control("txtHomePageURL").type("https://example.org/stårt");
    window.control("cmdHomePage").pressAndWait();
    EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Start Page"), "https://example.org/stårt");
    EXPECT_EQ(storedText("HomePage", "StartPage"), "https://example.org/stårt");
  }
  setUserText(ThrowAwayWorld::kBrowser, "Start Page", "https://slipped-in.example/");

  const RunningProgram program(world);

  EXPECT_EQ(program.window().control("txtHomePageURL").text(), "https://example.org/stårt");
  EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Start Page"), "https://example.org/stårt");
}

TEST_F(StoredOptions, AnEmptyHomePageStaysEmpty) {
  {
    const RunningProgram program(world);
    const ProgramWindow window = program.window();
    window.control("txtHomePageURL").type("");
    window.control("cmdHomePage").pressAndWait();
  }

  const RunningProgram program(world);

  EXPECT_EQ(program.window().control("txtHomePageURL").text(), "");
  EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Start Page"), "");
}

TEST_F(StoredOptions, TheBoxForWebAddressesActsAtOnceAndIsStoredNowhere) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.turnTo(TabPage::cleanInternet);
  const auto before = ThrowAwayWorld::allStored();

  window.control("chkWebAddress").tick(false);
  EXPECT_EQ(userText(ThrowAwayWorld::kAutoComplete, "AutoSuggest"), "yes");
  window.control("chkWebAddress").tick();
  EXPECT_EQ(userText(ThrowAwayWorld::kAutoComplete, "AutoSuggest"), "no");

  EXPECT_EQ(ThrowAwayWorld::allStored(), before);
}

TEST_F(StoredOptions, RunOnStartupIsStoredByTheExitAndNotByTheClick) {
  {
    const RunningProgram program(world);
    const ProgramWindow window = program.window();
    window.control("chkStartup").tick();
    EXPECT_EQ(storedText("Options", "StartUp"), std::nullopt);
    window.pressExit();
    ASSERT_EQ(program.endStatus(), EXIT_SUCCESS);
  }
  EXPECT_EQ(storedText("Options", "StartUp"), "1");

  const RunningProgram program(world);

  EXPECT_TRUE(program.window().control("chkStartup").isTicked());
}

TEST_F(StoredOptions, AnExitStoresThatRunOnStartupIsNotWanted) {
  storeText("Options", "StartUp", "1");
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.control("chkStartup").tick(false);

  window.pressExit();

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(storedText("Options", "StartUp"), "0");
}

}  // namespace
}  // namespace zelvane::test
