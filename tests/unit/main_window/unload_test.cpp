// How the window and the program end.
#include "core/startup_entry.h"
#include "tests/unit/main_window/window_test.h"

namespace zelvane::main_window {
namespace {

using controls::UnloadMode;

class UnloadTest : public WindowTest {
 protected:
  UnloadTest() { start(); }

  std::optional<std::string> startupEntry() const {
    return desktop.registry.text(Root::currentUser, core::Registry::kRunKey, "Zelvane");
  }
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

TEST_F(UnloadTest, ACheckedStartupBoxWritesTheEntryAndAnUncheckedOneDeletesIt) {
  window.mainPage.chkStartup.click();
  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);
  EXPECT_EQ(startupEntry(), "/opt/zelvane/zelvane.exe");

  frmMain next(desktop.ports());
  GenFunc::Main(desktop.ports(), next);
  next.mainPage.chkStartup.click();
  EXPECT_THROW(next.mainPage.cmdClose.click(), platform::ProcessEnded);
  EXPECT_EQ(startupEntry(), std::nullopt);
}

TEST_F(UnloadTest, TheEntryIsAssertedAnewAtEachExitThoughTheBoxWasNotTouched) {
  window.mainPage.chkStartup.click();
  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);
  desktop.registry.put(Root::currentUser, core::Registry::kRunKey, "Zelvane", "moved");

  frmMain next(desktop.ports());
  GenFunc::Main(desktop.ports(), next);
  EXPECT_THROW(next.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(startupEntry(), "/opt/zelvane/zelvane.exe");
}

TEST_F(UnloadTest, AStartupListThatRefusesIsNotToldAndTheProgramEnds) {
  desktop.registry.refuse(Root::currentUser, core::Registry::kRunKey);
  window.mainPage.chkStartup.click();

  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
  EXPECT_EQ(desktop.settings.find("Options", "StartUp"), "1");
}

TEST_F(UnloadTest, AStoreThatRefusesLeavesTheStartupEntryAsItWas) {
  desktop.settings.refuseSaves();
  window.mainPage.chkStartup.click();

  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(startupEntry(), std::nullopt);
}

// A second start has made its window when it finds that it may not show it.
TEST_F(UnloadTest, AWindowThatWasNeverLoadedStoresNothingWhenItIsToldToGo) {
  desktop.settings.put("Options", "StartUp", "1");
  desktop.registry.put(Root::currentUser, core::Registry::kRunKey, "Zelvane", "theirs");
  desktop.settings.forgetSaves();
  frmMain second(desktop.ports());

  EXPECT_THROW(second.mainPage.form.unload(UnloadMode::windows), platform::ProcessEnded);

  EXPECT_TRUE(desktop.settings.saves().empty());
  EXPECT_EQ(startupEntry(), "theirs");
}

TEST_F(UnloadTest, ToldAgainWhileItsErrorIsShownTheProgramEndsAtOnce) {
  desktop.settings.refuseSaves();
  desktop.dialogs.whileOpen([this] { window.mainPage.form.unload(UnloadMode::windows); });

  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.dialogs.boxes().size(), 1U);
}

TEST_F(UnloadTest, EveryOtherUnloadPassesAndRunsInFull) {
  for (const UnloadMode mode : {UnloadMode::code, UnloadMode::windows, UnloadMode::taskManager}) {
    frmMain one(desktop.ports());
    GenFunc::Main(desktop.ports(), one);
    desktop.settings.forgetSaves();
    one.mainPage.chkStartup.setValue(1);

    EXPECT_THROW(one.mainPage.form.unload(mode), platform::ProcessEnded);

    EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"StartUp"});
    EXPECT_EQ(startupEntry(), "/opt/zelvane/zelvane.exe");
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
