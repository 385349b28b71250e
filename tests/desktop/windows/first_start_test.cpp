// The program's first start for a user who has never had it.
#include <cstdlib>

#include <windows.h>

#include "tests/desktop/windows/desktop_test.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

using FirstStart = DesktopTest;

TEST_F(FirstStart, TheWindowIsCalledByNameAndVersionAndSaysReady) {
  const RunningProgram program(world);

  const ProgramWindow window = program.window();

  EXPECT_EQ(window.title(), "Zelvane v1.0");
  EXPECT_EQ(window.page(), TabPage::main);
  EXPECT_EQ(window.status(), "Ready");
  EXPECT_EQ(window.control("lblWebSite").text(), "https://www.zelvane.example/");
  EXPECT_TRUE(window.log().empty());
}

TEST_F(FirstStart, TheUsualOptionsAreTickedAndNoOther) {
  const RunningProgram program(world);

  const ProgramWindow window = program.window();

  const std::vector usual{Option::guardHomePage, Option::indexDat,   Option::siteAddresses,
                          Option::recentFiles,   Option::recycleBin, Option::cookies,
                          Option::history,       Option::freeSpace,  Option::temporaryFiles};
  EXPECT_EQ(window.ticked(), usual);
  EXPECT_TRUE(window.control("chkWebAddress").isTicked());
  EXPECT_FALSE(window.control("chkStartup").isTicked());
}

TEST_F(FirstStart, NoOptionIsStoredBeforeItIsClicked) {
  const RunningProgram program(world);

  program.window();

  for (int index = 0; index < 16; ++index) {
    EXPECT_EQ(storedOption(index), std::nullopt) << index;
  }
}

TEST_F(FirstStart, TheHomePageIsBlankAndImposedOnTheBrowser) {
  setUserText(ThrowAwayWorld::kBrowser, "Start Page", "https://slipped-in.example/");

  const RunningProgram program(world);

  EXPECT_EQ(program.window().control("txtHomePageURL").text(), "about:blank");
  EXPECT_EQ(userText(ThrowAwayWorld::kBrowser, "Start Page"), "about:blank");
}

TEST_F(FirstStart, TheContainersEntryIsWrittenIntoWinIni) {
  const RunningProgram program(world);
  program.window();

  const std::string path = pathOfTheProgram();
  const std::string folder = path.substr(0, path.rfind('\\'));
  EXPECT_EQ(ThrowAwayWorld::profileEntry(), folder + "Zelvane.exe ^.DVK");
}

TEST_F(FirstStart, AnEntryInWinIniThatIsThereStaysAlsoAnEmptyOne) {
  for (const std::string text : {"other.exe ^.DVK", ""}) {
    ThrowAwayWorld::setProfileEntry(text);

    const RunningProgram program(world);
    program.window();

    EXPECT_EQ(ThrowAwayWorld::profileEntry(), text);
  }
}

TEST_F(FirstStart, NoArgumentIsEverRead) {
  const std::string container = world / "letter.dvk";
  makeFile(container, "not to be opened");

  const RunningProgram program(world, "\"" + container + "\" --help /?");

  EXPECT_EQ(program.window().status(), "Ready");
  EXPECT_TRUE(isThere(container));
}

TEST_F(FirstStart, NothingIsWrittenIntoTheUsersFolders) {
  {
    const RunningProgram program(world);
    program.window().pressExit();
    ASSERT_EQ(program.endStatus(), EXIT_SUCCESS);
  }

  EXPECT_EQ(world.files(), std::vector<std::string>());
}

}  // namespace
}  // namespace zelvane::test
