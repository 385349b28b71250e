#include "cleaner/cleaning_run.h"

#include <vector>

#include "tests/unit/cleaner/cleaner_test.h"

namespace zelvane::cleaner {
namespace {

using namespace std::chrono_literals;
using controls::RichLog;
using platform::SpecialFolder;

class CleaningRunTest : public CleanerTest {};

TEST_F(CleaningRunTest, WithNothingTickedTheLogHoldsALineBreakAndDone) {
  page.rtfMessage.append("what an earlier run left");

  page.cmdBasicClean.click();

  EXPECT_EQ(page.rtfMessage.runs(),
            (std::vector<RichLog::Run>{{"\r\nDone", RichLog::Colour::black}}));
  EXPECT_EQ(around.lblStatus.caption(), "Ready");
  EXPECT_TRUE(around.tmrMakeScehduleEnable.enabled());
}

TEST_F(CleaningRunTest, WhileTheScheduleHoldsEditsARunIsRefusedWithoutAWord) {
  for (controls::Button* button : {&around.cmdApply, &around.cmdCancel}) {
    button->setEnabled(true);
    page.rtfMessage.append("what an earlier run left");
    around.tabMain.setTab(2);

    page.cmdBasicClean.click();
    page.Command2.click();
    page.Command3.click();

    EXPECT_EQ(log(), "what an earlier run left");
    EXPECT_EQ(around.lblLastRunTime.caption(), "##:##:##");
    EXPECT_EQ(around.tabMain.tab(), 2);
    EXPECT_TRUE(around.tmrSchedule.enabled());
    EXPECT_FALSE(around.tmrMakeScehduleEnable.enabled());
    EXPECT_TRUE(desktop.dialogs.boxes().empty());
    button->setEnabled(false);
    page.rtfMessage.clear();
  }
}

TEST_F(CleaningRunTest, TheTimeOfItsStartIsShownAtOnce) {
  desktop.clock.set({std::chrono::year{2026} / 11 / 21, 9h + 5min + 7s});
  desktop.pump.post([this] { desktop.clock.advance(1h); });

  page.cmdBasicClean.click();

  EXPECT_EQ(around.lblLastRunTime.caption(), "09:05:07");
}

TEST_F(CleaningRunTest, AnOpenBrowserIsToldOnceAfterTheRun) {
  desktop.leftTraces.add({"Firefox (home)", ""});
  desktop.leftTraces.add({"Firefox (home)", ""});

  page.cmdBasicClean.click();
  page.cmdBasicClean.click();

  ASSERT_EQ(desktop.notifications.shown.size(), 1U);
  EXPECT_EQ(desktop.notifications.shown[0].title, "Zelvane");
  EXPECT_EQ(desktop.notifications.shown[0].text,
            "Firefox (home) is open. Its traces were left: close it and clean again.");
  EXPECT_EQ(log(), "\r\nDone");
}

TEST_F(CleaningRunTest, WithNothingLeftNothingIsTold) {
  page.cmdBasicClean.click();

  EXPECT_TRUE(desktop.notifications.shown.empty());
}

TEST_F(CleaningRunTest, TheWindowComesForwardWithItsFirstPage) {
  around.tabMain.setTab(2);

  page.Command3.click();

  EXPECT_EQ(desktop.window.calls().at(0), "bringForward");
  EXPECT_EQ(around.tabMain.tab(), 0);
}

TEST_F(CleaningRunTest, BothTimersAreOffDuringARunAndOnlyTheOneSecondTimerIsOnAfterIt) {
  around.tmrMakeScehduleEnable.setEnabled(true);
  bool anyTimerOn = true;
  desktop.pump.post(
      [&] { anyTimerOn = around.tmrSchedule.enabled() || around.tmrMakeScehduleEnable.enabled(); });

  page.cmdBasicClean.click();

  EXPECT_FALSE(anyTimerOn);
  EXPECT_FALSE(around.tmrSchedule.enabled());
  EXPECT_TRUE(around.tmrMakeScehduleEnable.enabled());
}

TEST_F(CleaningRunTest, TasksAreDoneInTheOrderOfTheirIndices) {
  for (std::size_t index = 0; index < kOptionCount; ++index) {
    tick(kOptionCount - 1 - index);
  }

  page.cmdBasicClean.click();

  std::vector<std::string> finished;
  for (const RichLog::Run& piece : page.rtfMessage.runs()) {
    if (piece.text.starts_with("\r\nFinished ")) {
      finished.push_back(piece.text.substr(11));
    }
  }
  EXPECT_EQ(finished, (std::vector<std::string>{
                          "Erasing 'Auto Complete' Site Addresses", "Erasing Recent Files",
                          "Erasing My Documents Files", "Erasing Contents of Recycle Bin",
                          "Erasing Internet Cashe", "Erasing Browser Cookies",
                          "Erasing Browser Favorites", "Erasing Internet History",
                          "Erasing Windows Temporary Files", "Erasing Windows Start Run History"}));
}

TEST_F(CleaningRunTest, EachButtonRunsEveryTickedOptionOfAllPages) {
  for (controls::Button* button : {&page.cmdBasicClean, &page.Command2, &page.Command3}) {
    tick(5);
    tick(7);
    const int emptied = desktop.recycleBin.emptied();

    button->click();

    EXPECT_EQ(desktop.recycleBin.emptied(), emptied + 1) << button->name();
    EXPECT_NE(log().find("Finished Erasing Browser Cookies"), std::string::npos) << button->name();
  }
}

TEST_F(CleaningRunTest, OnlyATickedBoxEnablesItsTaskAndAGreyedOneDoesNot) {
  page.chkSettings[5].setValue(controls::CheckBox::kGreyed);

  page.cmdBasicClean.click();

  EXPECT_EQ(desktop.recycleBin.emptied(), 0);
}

TEST_F(CleaningRunTest, TheOptionsWithoutATaskEraseNothing) {
  tick(0);
  tick(1);
  tick(10);

  page.cmdBasicClean.click();

  EXPECT_EQ(log(), "\r\nDone");
  EXPECT_TRUE(desktop.fileSystem.deleted().empty());
  EXPECT_EQ(desktop.recycleBin.emptied(), 0);
}

TEST_F(CleaningRunTest, EventsRunAfterEachOfTheSixteenOptionsAndTheLogIsRepainted) {
  page.cmdBasicClean.click();

  EXPECT_EQ(desktop.pump.calls(), 16);
  EXPECT_EQ(std::ranges::count(desktop.window.calls(), "repaint rtfMessage"), 16);
}

TEST_F(CleaningRunTest, ARunMayStartInsideARun) {
  tick(5);
  desktop.pump.postIn(3, [this] { page.cmdBasicClean.click(); });

  page.cmdBasicClean.click();

  // The inner run clears the log and does the whole work; the outer one goes on where it was.
  EXPECT_EQ(desktop.recycleBin.emptied(), 2);
  EXPECT_TRUE(log().starts_with("\r\nPath: "));
  EXPECT_TRUE(log().ends_with("\r\nFinished Erasing Contents of Recycle Bin\r\nDone"));
  EXPECT_EQ(around.lblStatus.caption(), "Ready");
}

TEST_F(CleaningRunTest, AnOptionTickedWhileTheRunGoesOnIsDoneWhenItsTurnComes) {
  desktop.pump.post([this] { tick(5); });

  page.cmdBasicClean.click();

  EXPECT_EQ(desktop.recycleBin.emptied(), 1);
}

TEST_F(CleaningRunTest, TheProgramMayBeEndedInTheMiddleOfARun) {
  desktop.specialFolders.set(SpecialFolder::personal, "/home/user/Documents");
  desktop.fileSystem.addFile("/home/user/Documents/a/b/first.txt");
  desktop.fileSystem.addFile("/home/user/Documents/a/b/second.txt");
  tick(4);
  desktop.pump.postIn(5, [this] { desktop.process.end(); });

  EXPECT_THROW(page.cmdBasicClean.click(), platform::ProcessEnded);

  EXPECT_EQ(desktop.fileSystem.deleted(),
            (std::vector<std::string>{"/home/user/Documents/a/b/first.txt"}));
}

TEST_F(CleaningRunTest, TheStatusPassesThroughDoneToReady) {
  std::vector<std::string> captions;
  around.lblStatus.changed.connect([&] { captions.push_back(around.lblStatus.caption()); });

  page.cmdBasicClean.click();

  EXPECT_EQ(captions, (std::vector<std::string>{"\r\nDone", "Ready"}));
}

}  // namespace
}  // namespace zelvane::cleaner
