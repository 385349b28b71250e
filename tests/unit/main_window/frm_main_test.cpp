// What stands in the window, and where its subsystems meet.
#include <algorithm>
#include <map>
#include <set>

#include "core/controls/component.h"
#include "core/controls/file_dialog.h"
#include "core/controls/timer.h"
#include "tests/unit/main_window/window_test.h"

namespace zelvane::main_window {
namespace {

using namespace std::chrono_literals;

class FrmMainTest : public WindowTest {};

bool hasFace(const controls::Control& control) {
  return dynamic_cast<const controls::Timer*>(&control) == nullptr &&
         dynamic_cast<const controls::Component*>(&control) == nullptr &&
         dynamic_cast<const controls::FileDialog*>(&control) == nullptr;
}

TEST_F(FrmMainTest, TheTabsStandInTheirOrder) {
  EXPECT_EQ(window.mainPage.tabMain.captions(),
            (std::vector<std::string>{"Main", "Clean Internet", "Clean Computer", "Popup Killer",
                                      "File Security", "Schedule"}));
  EXPECT_EQ(window.tabPages().size(), window.mainPage.tabMain.captions().size());
}

TEST_F(FrmMainTest, EachControlIsFoundByItsNameWhichNoOtherHas) {
  std::set<std::string> names;
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      EXPECT_EQ(window.find(control->name()), control) << control->name();
      EXPECT_TRUE(names.insert(control->name()).second) << control->name();
    }
  }
  EXPECT_EQ(window.find("cmdNothing"), nullptr);
}

TEST_F(FrmMainTest, EachControlWithAFaceStandsOnOnePage) {
  std::map<const controls::Control*, int> places;
  for (const auto& column : window.tabPages()) {
    for (const controls::Control* control : column) {
      ++places[control];
    }
  }
  const std::set<const controls::Control*> outside{&window.mainPage.form, &window.mainPage.tabMain,
                                                   &window.mainPage.lblStatus};
  const controls::Page* pagesOfTheTabs[] = {&window.mainPage, &window.cleanerPage,
                                            &window.popupPage, &window.fileSecurityPage,
                                            &window.schedulePage};

  for (const controls::Page* page : pagesOfTheTabs) {
    for (const controls::Control* control : page->controls()) {
      const int expected = hasFace(*control) && !outside.contains(control) ? 1 : 0;
      EXPECT_EQ(places[control], expected) << control->name();
    }
  }
}

TEST_F(FrmMainTest, TheInternetPageShowsItsBoxesInTheirOrder) {
  const auto tabPages = window.tabPages();
  std::vector<std::string> names;
  for (const controls::Control* control : tabPages[1]) {
    names.push_back(control->name());
  }

  EXPECT_EQ(names, (std::vector<std::string>{"fmSettings", "chkSettings_8", "chkSettings_2",
                                             "chkSettings_3", "chkSettings_6", "chkSettings_7",
                                             "chkSettings_9", "chkWebAddress", "chkSettings_15",
                                             "chkSettings_14", "cmdDefaultSettings", "Command2"}));
}

TEST_F(FrmMainTest, APageThatIsNotBuiltYetIsDisabledByItsFrameAlone) {
  EXPECT_FALSE(window.fileSecurityPage.fmDravik.enabled());
  EXPECT_TRUE(window.fileSecurityPage.cmdEncrypt.enabled());
  EXPECT_FALSE(window.fileSecurityPage.cmdEncrypt.reachable());
  EXPECT_TRUE(window.schedulePage.cmbDays.reachable());
}

TEST_F(FrmMainTest, TheOtherPagesStartAsDesigned) {
  EXPECT_FALSE(window.popupPage.chkPopupKillerActivate.checked());
  EXPECT_TRUE(window.fileSecurityPage.cmdEncrypt.enabled());
  EXPECT_FALSE(window.fileSecurityPage.cmdDecrypt.enabled());
  EXPECT_TRUE(window.fileSecurityPage.Option2.value());
  EXPECT_FALSE(window.fileSecurityPage.Option4.value());
  EXPECT_FALSE(window.fileSecurityPage.Option5.value());
  EXPECT_EQ(window.fileSecurityPage.lblSourceDestination[0].caption(), "Source File:");
  EXPECT_EQ(window.fileSecurityPage.lblSourceDestination[1].caption(), "Destination File:");
  EXPECT_EQ(window.mainPage.Label12.caption(), "Your LAN IP address is:");
}

TEST_F(FrmMainTest, ActivatingTheWindowShowsTheExitButton) {
  window.mainPage.cmdClose.setVisible(false);

  window.mainPage.form.activated.raise();

  EXPECT_TRUE(window.mainPage.cmdClose.visible());
}

TEST_F(FrmMainTest, EditsOnTheSchedulePageRefuseARun) {
  start();
  window.schedulePage.cmdCancel.setEnabled(true);

  window.cleanerPage.cmdBasicClean.click();

  EXPECT_EQ(window.cleanerPage.rtfMessage.text(), "");
}

TEST_F(FrmMainTest, ARunByHandStoresItsStartOneSecondAfterItsEnd) {
  start();
  desktop.clock.set({std::chrono::year{2026} / 11 / 21, 10h + 45min});

  window.cleanerPage.cmdBasicClean.click();
  EXPECT_EQ(window.schedulePage.lblLastRunTime.caption(), "10:45:00");
  EXPECT_EQ(desktop.settings.find("Schedule", "LastRunTime"), std::nullopt);

  desktop.clock.advance(1s);
  window.schedulePage.tmrMakeScehduleEnable.tick();
  EXPECT_EQ(desktop.settings.find("Schedule", "LastRunTime"), "10:45:00");
  EXPECT_TRUE(window.schedulePage.tmrSchedule.enabled());
}

TEST_F(FrmMainTest, TheScheduleStartsARunAtItsSecond) {
  start();
  desktop.clock.set({std::chrono::year{2026} / 11 / 21, 8h + 30min});
  window.schedulePage.dtpScheduleTime.setValue(desktop.clock.now());
  window.schedulePage.cmdApply.click();

  window.schedulePage.tmrSchedule.tick();

  EXPECT_TRUE(window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
  EXPECT_EQ(window.schedulePage.lblLastRunTime.caption(), "08:30:00");
  EXPECT_FALSE(window.schedulePage.tmrSchedule.enabled());
  EXPECT_TRUE(window.schedulePage.tmrMakeScehduleEnable.enabled());
}

TEST_F(FrmMainTest, AnEditedScheduleStartsNoRunBeforeItIsApplied) {
  start();
  window.schedulePage.dtpScheduleTime.setValue(desktop.clock.now());

  window.schedulePage.tmrSchedule.tick();
  EXPECT_EQ(window.cleanerPage.rtfMessage.text(), "");
  EXPECT_TRUE(window.schedulePage.tmrSchedule.enabled());

  window.schedulePage.cmdApply.click();
  window.schedulePage.tmrSchedule.tick();
  EXPECT_TRUE(window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
}

TEST_F(FrmMainTest, ARunByHandMovesTheHoursOfTheSchedule) {
  start();
  desktop.clock.set({std::chrono::year{2026} / 11 / 21, 10h + 45min});
  window.cleanerPage.cmdBasicClean.click();
  window.schedulePage.tmrMakeScehduleEnable.tick();

  desktop.clock.set({std::chrono::year{2026} / 11 / 21, 12h});
  window.schedulePage.tmrSchedule.tick();

  EXPECT_EQ(window.schedulePage.lblLastRunTime.caption(), "12:00:00");
}

TEST_F(FrmMainTest, TheTraysItemTurnsThePopupKillersBox) {
  start();

  window.trayMenu.mnuPoupKiller.click();

  EXPECT_FALSE(window.popupPage.chkPopupKillerActivate.checked());
  EXPECT_FALSE(window.trayMenu.mnuPoupKiller.checked());
}

TEST_F(FrmMainTest, BothWebLabelsOpenTheAddressThatTheyShow) {
  desktop.fileSystem.addFolder("/tmp");
  desktop.specialFolders.setTemporary("/tmp/");
  desktop.programs.use("htm", "/usr/bin/browser");
  start();
  window.popupPage.Label9.setCaption("https://other.example/");

  window.mainPage.lblWebSite.click();
  window.popupPage.Label9.click();

  EXPECT_EQ(desktop.programs.started(), (std::vector<platform::MemoryPrograms::Started>{
                                            {"/usr/bin/browser", "https://www.zelvane.example/"},
                                            {"/usr/bin/browser", "https://other.example/"}}));
}

TEST_F(FrmMainTest, TheTrayMenuHasItsFiveItems) {
  std::vector<std::string> captions;
  for (const controls::MenuItem* item : window.trayMenu.mnuQuorvex.items()) {
    captions.push_back(item->caption());
  }

  EXPECT_EQ(captions,
            (std::vector<std::string>{"", "Activate Popup Killer", "About", "-", "Exit"}));
  EXPECT_EQ(window.trayMenu.mnuQuorvex.caption(), "Quorvex Popup");
}

}  // namespace
}  // namespace zelvane::main_window
