// How the window and the program end.
#include "tests/unit/main_window/window_test.h"

namespace zelvane::main_window {
namespace {

using controls::UnloadMode;

class UnloadTest : public WindowTest {
 protected:
  UnloadTest() { start(); }
};

TEST_F(UnloadTest, TheCloseBoxOnlyPutsTheWindowOutOfTheWay) {
  EXPECT_FALSE(window.mainPage.form.unload(UnloadMode::controlMenu));

  EXPECT_FALSE(window.mainPage.form.visible());
  EXPECT_FALSE(desktop.process.ended());
}

TEST_F(UnloadTest, TheExitButtonSavesTheStartupChoiceAndEndsTheProcess) {
  window.mainPage.chkStartup.click();

  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.settings.find("Options", "StartUp"), "1");
}

TEST_F(UnloadTest, AnUncheckedStartupBoxIsSavedAsZero) {
  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.settings.find("Options", "StartUp"), "0");
}

TEST_F(UnloadTest, EveryOtherUnloadPassesAndRunsInFull) {
  for (const UnloadMode mode : {UnloadMode::code, UnloadMode::windows, UnloadMode::taskManager}) {
    desktop.settings.forgetSaves();

    EXPECT_THROW(window.mainPage.form.unload(mode), platform::ProcessEnded);

    EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"StartUp"});
  }
}

TEST_F(UnloadTest, AnErrorIsToldAndTheProcessEndsAllTheSame) {
  desktop.settings.refuseSaves();

  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 70 - Permission denied");
  EXPECT_TRUE(desktop.process.ended());
}

TEST_F(UnloadTest, TheExitButtonEndsTheProgramAlsoInTheMiddleOfARun) {
  desktop.pump.post([this] { window.mainPage.cmdClose.click(); });

  EXPECT_THROW(window.cleanerPage.cmdBasicClean.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.settings.find("Options", "StartUp"), "0");
  EXPECT_FALSE(window.cleanerPage.rtfMessage.text().ends_with("Done"));
}

TEST_F(UnloadTest, ClickingTheStartupBoxDoesNothingUntilExit) {
  desktop.settings.forgetSaves();

  window.mainPage.chkStartup.click();

  EXPECT_TRUE(desktop.settings.saves().empty());
}

}  // namespace
}  // namespace zelvane::main_window
