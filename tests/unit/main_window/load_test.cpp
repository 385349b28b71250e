// The window's load, step by step.
#include <ostream>
#include <vector>

#include "tests/unit/main_window/window_test.h"

namespace zelvane::main_window {
namespace {

constexpr auto kSoundFile = "/home/user/.local/share/zelvane/wavpath.txt";

class LoadTest : public WindowTest {
 protected:
  std::vector<int> options() const {
    std::vector<int> values;
    for (const controls::CheckBox& box : window.cleanerPage.chkSettings) {
      values.push_back(box.value());
    }
    return values;
  }
};

TEST_F(LoadTest, AFirstStartOnACleanProfile) {
  start();

  EXPECT_TRUE(window.popupPage.chkPopupKillerActivate.checked());
  EXPECT_TRUE(window.trayMenu.mnuPoupKiller.checked());
  EXPECT_EQ(window.popupPage.Label14.caption(), "");
  EXPECT_EQ(window.mainPage.chkStartup.value(), 0);
  EXPECT_EQ(window.cleanerPage.txtHomePageURL.text(), "about:blank");
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kBrowserMain, "Start Page"), "about:blank");
  EXPECT_EQ(options(), (std::vector<int>{1, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 0, 0, 0}));
  EXPECT_EQ(desktop.settings.find("Schedule", "RunOn"), std::nullopt);
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

TEST_F(LoadTest, TheVersionLabelIsTheCaptionOfTheWindowAndOfTheTraysFirstItem) {
  desktop.identity.facts.version.minor = 7;

  start();

  EXPECT_EQ(window.mainPage.form.caption(), "Zelvane v1.7");
  EXPECT_EQ(window.trayMenu.mnuShow.caption(), "Zelvane v1.7");
}

TEST_F(LoadTest, BothWebLabelsShowTheMakersAddress) {
  start();

  EXPECT_EQ(window.mainPage.lblWebSite.caption(), "https://www.zelvane.example/");
  EXPECT_EQ(window.popupPage.Label9.caption(), "https://www.zelvane.example/");
}

TEST_F(LoadTest, StoredOptionsWinOverTheDefaultsAndTheLoadStoresNone) {
  storeOption(2, "0");
  storeOption(8, "1");
  storeOption(9, "3");

  start();

  EXPECT_EQ(options(), (std::vector<int>{1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 1, 1, 0, 0, 0, 0}));
  EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"IsActive"});
}

TEST_F(LoadTest, FromTheHomePageOnOptionClicksAreStored) {
  start();
  desktop.settings.forgetSaves();

  window.cleanerPage.chkSettings[12].click();

  EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"Index12"});
}

TEST_F(LoadTest, TheWebAddressBoxIsUntickedWhileTheBrowserSuggests) {
  desktop.registry.put(Root::currentUser, kAutoComplete, "AutoSuggest", "yes");

  start();

  EXPECT_FALSE(window.cleanerPage.chkWebAddress.checked());
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kAutoComplete, "AutoSuggest"), "yes");
}

TEST_F(LoadTest, TheWebAddressBoxIsTickedOtherwiseAndItsClickWritesNo) {
  start();

  EXPECT_TRUE(window.cleanerPage.chkWebAddress.checked());
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kAutoComplete, "AutoSuggest"), "no");
}

TEST_F(LoadTest, TheStoredHomePageIsPutBackAtEveryStart) {
  desktop.settings.put("HomePage", "StartPage", "https://mine.example/");
  desktop.registry.put(Root::currentUser, kBrowserMain, "Start Page", "https://theirs.example/");

  start();

  EXPECT_EQ(window.cleanerPage.txtHomePageURL.text(), "https://mine.example/");
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kBrowserMain, "Start Page"),
            "https://mine.example/");
}

TEST_F(LoadTest, TheMachineIsShownByItsNameItsSystemAndItsAddress) {
  desktop.machine.facts.computerName = "ATTIC-PC";
  desktop.machine.facts.system = platform::SystemVersion{.kind = 2, .major = 5, .minor = 1};
  desktop.machine.facts.localAddress = "192.168.7.31";

  start();

  EXPECT_EQ(window.mainPage.lblUser.caption(), "User ATTIC-PC");
  EXPECT_EQ(window.mainPage.lblOS.caption(), "Windows 2000");
  EXPECT_EQ(window.mainPage.Label12.caption(), "Your LAN IP address is:");
  EXPECT_EQ(window.mainPage.Label13.caption(), "192.168.7.31");
}

TEST_F(LoadTest, WithoutANetworkTheAddressIsEmptyAndTheLoadGoesOn) {
  desktop.machine.facts.localAddress = std::nullopt;

  start();

  EXPECT_EQ(window.mainPage.Label13.caption(), "");
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

TEST_F(LoadTest, AStoredStartUpIsShownAndNothingIsWrittenUntilExit) {
  desktop.settings.put("Options", "StartUp", "1");

  start();

  EXPECT_TRUE(window.mainPage.chkStartup.checked());
  EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"IsActive"});
  EXPECT_EQ(desktop.registry.text(Root::currentUser,
                                  R"(Software\Microsoft\Windows\CurrentVersion\Run)", "Zelvane"),
            std::nullopt);
}

TEST_F(LoadTest, AFirstStartStoresThatThePopupKillerIsOn) {
  start();

  EXPECT_EQ(desktop.settings.find("PopupKiller", "IsActive"), "1");
}

TEST_F(LoadTest, APopupKillerStoredAsOffIsShownOffInBothPlaces) {
  desktop.settings.put("PopupKiller", "IsActive", "0");

  start();

  EXPECT_FALSE(window.popupPage.chkPopupKillerActivate.checked());
  EXPECT_FALSE(window.trayMenu.mnuPoupKiller.checked());
  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(LoadTest, TheAlertSoundIsShown) {
  desktop.fileSystem.addFile(kSoundFile, "/music/gong.wav\r\n");

  start();

  EXPECT_EQ(window.popupPage.CommonDialog1.fileName, "/music/gong.wav");
  EXPECT_EQ(window.popupPage.Label14.caption(), "/music/gong.wav");
}

TEST_F(LoadTest, AFileForTheSoundsPathThatIsMissingIsToldAndTheLaterStepsAreSkipped) {
  desktop.fileSystem.vanish(kSoundFile);
  desktop.settings.put("Options", "StartUp", "1");
  desktop.settings.put("HomePage", "StartPage", "https://mine.example/");

  start();

  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].text, "Error: 53 - File not found");
  EXPECT_EQ(desktop.dialogs.boxes()[0].title, "Zelvane");
  EXPECT_EQ(window.mainPage.form.caption(), "Zelvane");
  EXPECT_FALSE(window.popupPage.chkPopupKillerActivate.checked());
  EXPECT_FALSE(window.trayMenu.mnuPoupKiller.checked());
  EXPECT_EQ(options(), std::vector<int>(16, 0));
  EXPECT_EQ(window.cleanerPage.txtHomePageURL.text(), "");
  EXPECT_EQ(window.mainPage.chkStartup.value(), 0);
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "");
  EXPECT_TRUE(window.mainPage.form.visible());
}

TEST_F(LoadTest, WithoutThatFileOptionClicksAreNotStoredButThePopupKillersAre) {
  desktop.fileSystem.vanish(kSoundFile);
  start();

  window.cleanerPage.chkSettings[12].click();
  window.popupPage.chkPopupKillerActivate.click();

  EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"IsActive"});
}

struct SpoiltNumber {
  std::string stored;
  std::string message;

  friend void PrintTo(const SpoiltNumber& number, std::ostream* out) { *out << number.message; }
};

class SpoiltStartUpTest : public LoadTest, public testing::WithParamInterface<SpoiltNumber> {};

TEST_P(SpoiltStartUpTest, EndsTheLoadWithItsErrorAndTheLaterStepsAreSkipped) {
  desktop.settings.put("Options", "StartUp", GetParam().stored);

  start();

  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].text, GetParam().message);
  EXPECT_EQ(desktop.dialogs.boxes()[0].title, "Zelvane");
  EXPECT_EQ(window.mainPage.chkStartup.value(), 0);
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "");
  // The steps before it stand, and the window is there.
  EXPECT_EQ(window.cleanerPage.txtHomePageURL.text(), "about:blank");
  EXPECT_TRUE(window.mainPage.form.visible());
}

TEST_P(SpoiltStartUpTest, LeavesNoEditsOfTheScheduleThatWouldRefuseARun) {
  desktop.settings.put("Options", "StartUp", GetParam().stored);
  start();

  window.cleanerPage.cmdBasicClean.click();

  EXPECT_TRUE(window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
}

INSTANTIATE_TEST_SUITE_P(EachKind, SpoiltStartUpTest,
                         testing::Values(SpoiltNumber{"abc", "Error: 13 - Type mismatch"},
                                         SpoiltNumber{"", "Error: 13 - Type mismatch"},
                                         SpoiltNumber{"40000", "Error: 6 - Overflow"},
                                         SpoiltNumber{"7", "Error: 380 - Invalid property value"}));

TEST_F(LoadTest, TheScheduleStartsAppliedAndSoARunIsNotRefused) {
  start();

  EXPECT_FALSE(window.schedulePage.cmdApply.enabled());
  EXPECT_FALSE(window.schedulePage.cmdCancel.enabled());

  window.cleanerPage.cmdBasicClean.click();
  EXPECT_TRUE(window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
}

TEST_F(LoadTest, WithoutAStoredScheduleThePickersShowThePresentMomentAndHoldNone) {
  const platform::LocalTime now = desktop.clock.now();

  start();

  EXPECT_EQ(window.schedulePage.cmbDays.text(), "Daily");
  EXPECT_EQ(window.schedulePage.dtpScheduleDate.value(), std::nullopt);
  EXPECT_EQ(window.schedulePage.dtpScheduleDate.shown(), now);
  EXPECT_EQ(window.schedulePage.dtpScheduleTime.value(), std::nullopt);
  EXPECT_EQ(window.schedulePage.dtpScheduleTime.shown(), now);
  EXPECT_EQ(window.schedulePage.txtHours.text(), "2");
  EXPECT_EQ(window.schedulePage.lblLastRunTime.caption(), "##:##:##");
}

TEST_F(LoadTest, AStoredScheduleIsShownAndAppliedWithTheTimeOfTheLastRun) {
  desktop.settings.put("Schedule", "RunOn", "9");
  desktop.settings.put("Schedule", "Date", "2026-12-24");
  desktop.settings.put("Schedule", "Time", "08:30:00");
  desktop.settings.put("Schedule", "LastRunTime", "10:45:00");

  start();

  EXPECT_EQ(window.schedulePage.cmbDays.text(), "Date & Time");
  EXPECT_TRUE(window.schedulePage.dtpScheduleDate.value().has_value());
  EXPECT_TRUE(window.schedulePage.dtpScheduleTime.value().has_value());
  EXPECT_EQ(window.schedulePage.lblLastRunTime.caption(), "10:45:00");
  EXPECT_FALSE(window.schedulePage.cmdApply.enabled());
  EXPECT_FALSE(window.schedulePage.cmdCancel.enabled());
  // The box of the popup killer, which the load checks, stores its state.
  EXPECT_EQ(desktop.settings.savedKeys(), std::vector<std::string>{"IsActive"});
}

class SpoiltRunOnTest : public LoadTest, public testing::WithParamInterface<SpoiltNumber> {};

TEST_P(SpoiltRunOnTest, EndsTheLoadWithItsErrorAndStaysStored) {
  desktop.settings.put("Schedule", "RunOn", GetParam().stored);

  start();

  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].text, GetParam().message);
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "");
  EXPECT_EQ(desktop.settings.find("Schedule", "RunOn"), GetParam().stored);
  EXPECT_TRUE(window.mainPage.form.visible());
}

INSTANTIATE_TEST_SUITE_P(EachKind, SpoiltRunOnTest,
                         testing::Values(SpoiltNumber{"abc", "Error: 13 - Type mismatch"},
                                         SpoiltNumber{"40000", "Error: 6 - Overflow"}));

TEST_F(LoadTest, SettingsThatCannotBeReadAreLikeNoSettings) {
  desktop.settings.put("HomePage", "StartPage", "https://mine.example/");
  desktop.settings.refuseEverything();

  start();

  EXPECT_EQ(window.cleanerPage.txtHomePageURL.text(), "about:blank");
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

}  // namespace
}  // namespace zelvane::main_window
