// The icon in the notification area, and what the user does with it.
#include <algorithm>
#include <numeric>

#include "core/shell_tray.h"
#include "platform/error.h"
#include "tests/unit/main_window/window_test.h"

namespace zelvane::main_window {
namespace {

using controls::Form;
using controls::UnloadMode;
using platform::Tray;

class TrayTest : public WindowTest {
 protected:
  void close() { window.mainPage.form.unload(UnloadMode::controlMenu); }

  bool isHidden() const { return !window.mainPage.form.visible(); }
  bool isNormal() const {
    return window.mainPage.form.visible() && window.mainPage.form.state() == Form::State::normal;
  }
  bool isMinimised() const {
    return window.mainPage.form.visible() && window.mainPage.form.state() == Form::State::minimised;
  }

  // The steps of the icon, and of the unload beside it, in their order.
  std::vector<std::string> steps() const {
    std::vector<std::string> names;
    for (const auto& call : desktop.tray.calls()) {
      names.push_back(call.name);
    }
    return names;
  }
};

class LoadedTrayTest : public TrayTest {
 protected:
  LoadedTrayTest() { start(); }
};

TEST_F(TrayTest, BeforeTheWindowHasLoadedThereIsNoIcon) {
  EXPECT_EQ(desktop.tray.tip(), std::nullopt);
}

TEST_F(TrayTest, ASecondInstanceShowsNoIcon) {
  desktop.instance.heldByAnother = true;

  EXPECT_THROW(start(), platform::ProcessEnded);

  EXPECT_TRUE(desktop.tray.calls().empty());
}

TEST_F(TrayTest, TheLoadShowsTheMainWindowsIconWithTheVersionLabel) {
  desktop.identity.facts.version.minor = 7;

  start();

  ASSERT_EQ(desktop.tray.calls().size(), 1U);
  EXPECT_EQ(desktop.tray.calls()[0].record,
            core::ShellTray::record(desktop.tray.windowHandle("frmMain"), 1, 7, 517,
                                    desktop.tray.iconHandle("frmMain"), "Zelvane v1.7"));
}

TEST_F(TrayTest, ALoadThatEndsEarlyShowsNoIcon) {
  window.mainPage.lblWebSite.changed.connect(
      [] { throw platform::Error(platform::ErrorNumber::outOfMemory); });

  start();

  EXPECT_TRUE(desktop.tray.calls().empty());
}

TEST_F(TrayTest, WithoutAPlaceForTheIconTheProgramRunsAllTheSame) {
  desktop.tray.takePlaceAway();

  start();

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
  EXPECT_TRUE(isNormal());
}

TEST_F(LoadedTrayTest, TheCloseBoxHidesTheWindowAndTheIconStays) {
  close();

  EXPECT_TRUE(isHidden());
  EXPECT_EQ(window.mainPage.form.state(), Form::State::minimised);
  EXPECT_EQ(desktop.tray.tip(), "Zelvane v1.0");
  EXPECT_FALSE(desktop.process.ended());
}

TEST_F(LoadedTrayTest, TheCloseBoxIsCancelledSoThatNothingIsSaved) {
  desktop.settings.forgetSaves();

  EXPECT_FALSE(window.mainPage.form.unload(UnloadMode::controlMenu));

  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(LoadedTrayTest, TheCloseBoxMinimisesBeforeItHides) {
  std::vector<std::string> seen;
  window.mainPage.form.changed.connect([&] {
    seen.emplace_back(isHidden() ? "hidden" : isMinimised() ? "minimised" : "normal");
  });

  close();

  EXPECT_EQ(seen, (std::vector<std::string>{"minimised", "hidden"}));
}

TEST_F(LoadedTrayTest, TheCloseBoxAddsTheIconAgain) {
  close();

  EXPECT_EQ(steps(), (std::vector<std::string>{"add", "add"}));
  EXPECT_EQ(desktop.tray.calls()[0].record, desktop.tray.calls()[1].record);
}

TEST_F(LoadedTrayTest, ClosingAgainAndAgainLeavesOneIcon) {
  for (int time = 0; time < 100; ++time) {
    close();
    desktop.tray.use(Tray::kLeftDoubleClicked);
    ASSERT_TRUE(isNormal());
  }

  EXPECT_EQ(desktop.tray.tip(), "Zelvane v1.0");
}

TEST_F(LoadedTrayTest, TheCloseBoxMinimisesWhereThereIsNoPlaceForTheIcon) {
  desktop.tray.takePlaceAway();

  close();

  EXPECT_TRUE(isMinimised());
}

TEST_F(LoadedTrayTest, ADoubleClickBringsTheHiddenWindowBackInItsNormalState) {
  close();

  desktop.tray.use(Tray::kLeftDoubleClicked);

  EXPECT_TRUE(isNormal());
  EXPECT_EQ(desktop.window.calls(), std::vector<std::string>{"activate"});
}

TEST_F(LoadedTrayTest, AHiddenWindowThatComesBackIsNotSeenMinimisedFirst) {
  close();
  std::vector<std::string> seen;
  window.mainPage.form.changed.connect([&] {
    seen.emplace_back(isHidden() ? "hidden" : isMinimised() ? "minimised" : "normal");
  });

  desktop.tray.use(Tray::kLeftDoubleClicked);

  EXPECT_EQ(seen, (std::vector<std::string>{"hidden", "normal"}));
}

TEST_F(LoadedTrayTest, ADoubleClickRestoresTheMinimisedWindow) {
  window.mainPage.form.setState(Form::State::minimised);

  desktop.tray.use(Tray::kLeftDoubleClicked);

  EXPECT_TRUE(isNormal());
}

TEST_F(LoadedTrayTest, ADoubleClickLeavesTheNormalWindowNormalAndGivesItTheKeys) {
  desktop.tray.use(Tray::kLeftDoubleClicked);

  EXPECT_TRUE(isNormal());
  EXPECT_EQ(desktop.window.calls(), std::vector<std::string>{"activate"});
}

TEST_F(LoadedTrayTest, TheRightButtonOpensTheMenuAndLeavesTheWindowHidden) {
  close();

  desktop.tray.use(Tray::kRightReleased);

  EXPECT_EQ(desktop.tray.menus(), std::vector<std::string>{"mnuQuorvex"});
  EXPECT_TRUE(isHidden());
}

TEST_F(LoadedTrayTest, EveryOtherMessageOfTheMouseIsIgnored) {
  close();
  const auto isHeeded = [](int message) {
    return message == Tray::kLeftDoubleClicked || message == Tray::kRightReleased;
  };
  std::vector<int> messages(1100);
  std::iota(messages.begin(), messages.end(), 0);
  std::erase_if(messages, isHeeded);

  std::ranges::for_each(messages, [&](int message) { desktop.tray.use(message); });

  EXPECT_TRUE(isHidden());
  EXPECT_TRUE(desktop.tray.menus().empty());
}

TEST_F(LoadedTrayTest, TheMessageIsTheNearestWholeNumberOfPixels) {
  constexpr double kDoubleClick = 515 * Form::kUnitsPerPixel;
  close();

  window.mainPage.form.mouseUp.raise(kDoubleClick - 8);
  window.mainPage.form.mouseUp.raise(kDoubleClick + 8);
  EXPECT_TRUE(isHidden());

  window.mainPage.form.mouseUp.raise(kDoubleClick - 7);
  EXPECT_TRUE(isNormal());

  close();
  window.mainPage.form.mouseUp.raise(kDoubleClick + 7);
  EXPECT_TRUE(isNormal());
}

TEST_F(LoadedTrayTest, AnErrorWhileTheIconIsUsedIsTold) {
  close();
  window.mainPage.form.changed.connect(
      [] { throw platform::Error(platform::ErrorNumber::outOfMemory); });

  desktop.tray.use(Tray::kLeftDoubleClicked);

  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 7 - Out of memory");
}

TEST_F(LoadedTrayTest, TheMenusFirstItemShowsTheWindow) {
  close();

  window.trayMenu.mnuShow.click();

  EXPECT_TRUE(isNormal());
  EXPECT_EQ(desktop.window.calls(), std::vector<std::string>{"activate"});
}

TEST_F(LoadedTrayTest, TheMenusExitRemovesTheIconBeforeTheWindowUnloads) {
  close();
  std::vector<std::string> stepsAtUnload;
  window.mainPage.form.queryUnload.connect([&](bool&, UnloadMode) { stepsAtUnload = steps(); });

  EXPECT_THROW(window.trayMenu.mnuUnloadQuorvex.click(), platform::ProcessEnded);

  EXPECT_EQ(stepsAtUnload, (std::vector<std::string>{"add", "add", "remove"}));
  EXPECT_EQ(steps(), (std::vector<std::string>{"add", "add", "remove", "remove"}));
}

TEST_F(LoadedTrayTest, TheMenusExitSavesTheStartupChoiceAndEndsTheProcess) {
  window.mainPage.chkStartup.click();

  EXPECT_THROW(window.trayMenu.mnuUnloadQuorvex.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.settings.find("Options", "StartUp"), "1");
  EXPECT_TRUE(desktop.process.ended());
}

TEST_F(LoadedTrayTest, TheMenusExitPassesAsAnUnloadByTheProgram) {
  UnloadMode seen = UnloadMode::controlMenu;
  window.mainPage.form.queryUnload.connect([&](bool&, UnloadMode mode) { seen = mode; });

  EXPECT_THROW(window.trayMenu.mnuUnloadQuorvex.click(), platform::ProcessEnded);

  EXPECT_EQ(seen, UnloadMode::code);
}

TEST_F(LoadedTrayTest, EveryUnloadRemovesTheIcon) {
  for (const UnloadMode mode : {UnloadMode::code, UnloadMode::windows, UnloadMode::taskManager}) {
    frmMain one(desktop.ports());
    one.Form_Load();
    ASSERT_NE(desktop.tray.tip(), std::nullopt);

    EXPECT_THROW(one.mainPage.form.unload(mode), platform::ProcessEnded);

    EXPECT_EQ(desktop.tray.tip(), std::nullopt);
  }
}

TEST_F(LoadedTrayTest, TheIconIsRemovedAfterTheStartupChoiceIsSaved) {
  desktop.settings.refuseSaves();

  EXPECT_THROW(window.mainPage.cmdClose.click(), platform::ProcessEnded);

  EXPECT_EQ(steps(), std::vector<std::string>{"add"});
}

TEST_F(LoadedTrayTest, TheEndOfTheFormRemovesTheIconOnceMore) {
  window.mainPage.form.terminated.raise();
  window.mainPage.form.terminated.raise();

  EXPECT_EQ(steps(), (std::vector<std::string>{"add", "remove", "remove"}));
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(LoadedTrayTest, AHiddenWindowWhoseIconIsLostIsShownMinimised) {
  close();

  desktop.tray.takePlaceAway();

  EXPECT_TRUE(isMinimised());
}

TEST_F(LoadedTrayTest, AVisibleWindowWhoseIconIsLostStaysAsItIs) {
  desktop.tray.takePlaceAway();

  EXPECT_TRUE(isNormal());
}

TEST_F(LoadedTrayTest, OnceThereIsAPlaceForTheIconAgainTheCloseBoxHides) {
  desktop.tray.takePlaceAway();
  close();
  desktop.tray.givePlace();

  close();

  EXPECT_TRUE(isHidden());
  EXPECT_EQ(desktop.tray.tip(), "Zelvane v1.0");
}

TEST_F(LoadedTrayTest, WhileTheWindowIsHiddenTheSchedulesTimerGoesOn) {
  close();

  EXPECT_TRUE(window.schedulePage.tmrSchedule.enabled());
}

TEST_F(LoadedTrayTest, OfTheMenusItemsOneMayHaveAMark) {
  std::vector<std::string> markable;
  for (const controls::MenuItem* item : window.trayMenu.mnuQuorvex.items()) {
    markable.insert(markable.end(), item->markable() ? 1 : 0, item->name());
  }

  EXPECT_EQ(markable, std::vector<std::string>{"mnuPoupKiller"});
}

}  // namespace
}  // namespace zelvane::main_window
