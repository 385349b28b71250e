// Editing, applying and cancelling.
#include "scheduler/schedule_settings.h"

#include "tests/unit/scheduler/schedule_test.h"

namespace zelvane::scheduler {
namespace {

using std::chrono::year;

class ScheduleSettingsTest : public ScheduleTest {
 protected:
  static constexpr platform::LocalTime kMorning{year{2026} / 11 / 21, 8h + 30min};

  void choose(int kind) { page.cmbDays.setListIndex(kind); }

  // Both pickers hold a value, the hours are another number than theirs.
  void fillIn() {
    choose(kDateAndTime);
    page.dtpScheduleDate.setValue(kMorning);
    page.dtpScheduleTime.setValue(kMorning);
    page.txtHours.setText("5");
  }

  ScheduleSettings schedule{page, settings, desktop.ports(), handler};
};

TEST_F(ScheduleSettingsTest, AWeekdayOrDailyHasNoDateAndATimeOrHours) {
  for (int kind = kMonday; kind <= kDaily; ++kind) {
    fillIn();

    choose(kind);

    EXPECT_EQ(page.dtpScheduleDate.value(), std::nullopt);
    EXPECT_FALSE(page.dtpScheduleDate.enabled());
    EXPECT_EQ(page.dtpScheduleTime.value(), kMorning);
    EXPECT_TRUE(page.dtpScheduleTime.enabled());
    EXPECT_TRUE(areHoursDisabled());
  }
}

TEST_F(ScheduleSettingsTest, AWeekdayOrDailyWithoutATimeHasHours) {
  for (int kind = kMonday; kind <= kDaily; ++kind) {
    choose(kNever);

    choose(kind);

    EXPECT_TRUE(page.dtpScheduleTime.enabled());
    EXPECT_TRUE(areHoursEnabled());
  }
}

TEST_F(ScheduleSettingsTest, AWeekdayWithoutATimeAndWithoutHoursGetsTwo) {
  page.txtHours.setText("");

  choose(kSunday);

  EXPECT_EQ(page.txtHours.text(), "2");
}

TEST_F(ScheduleSettingsTest, HoursThatAreThereStay) {
  page.txtHours.setText("7");

  choose(kDaily);

  EXPECT_EQ(page.txtHours.text(), "7");
}

TEST_F(ScheduleSettingsTest, EmptyHoursBesideATimeStayEmpty) {
  fillIn();
  page.txtHours.setText("");

  choose(kDaily);

  EXPECT_EQ(page.txtHours.text(), "");
}

TEST_F(ScheduleSettingsTest, ADateHasNoTimeAndHours) {
  fillIn();

  choose(kDate);

  EXPECT_EQ(page.dtpScheduleDate.value(), kMorning);
  EXPECT_TRUE(page.dtpScheduleDate.enabled());
  EXPECT_EQ(page.dtpScheduleTime.value(), std::nullopt);
  EXPECT_FALSE(page.dtpScheduleTime.enabled());
  EXPECT_TRUE(areHoursEnabled());
}

TEST_F(ScheduleSettingsTest, ADateAndTimeHasBothAndNoHours) {
  choose(kNever);

  choose(kDateAndTime);

  EXPECT_TRUE(page.dtpScheduleDate.enabled());
  EXPECT_TRUE(page.dtpScheduleTime.enabled());
  EXPECT_EQ(page.dtpScheduleTime.value(), std::nullopt);
  EXPECT_TRUE(areHoursDisabled());
}

TEST_F(ScheduleSettingsTest, NeverHasNothing) {
  fillIn();

  choose(kNever);

  EXPECT_EQ(page.dtpScheduleDate.value(), std::nullopt);
  EXPECT_FALSE(page.dtpScheduleDate.enabled());
  EXPECT_EQ(page.dtpScheduleTime.value(), std::nullopt);
  EXPECT_FALSE(page.dtpScheduleTime.enabled());
  EXPECT_TRUE(areHoursDisabled());
}

TEST_F(ScheduleSettingsTest, ChoosingAnyKindIsAnEditAlsoTheSameOneAgain) {
  for (int kind = controls::ComboBox::kNothing; kind <= kNever; ++kind) {
    choose(kind);
    schedule.markApplied();

    choose(kind);

    EXPECT_TRUE(isEdited()) << kind;
  }
}

TEST_F(ScheduleSettingsTest, ATimeDisablesTheHours) {
  choose(kDaily);

  page.dtpScheduleTime.setValue(kMorning);

  EXPECT_TRUE(areHoursDisabled());
}

TEST_F(ScheduleSettingsTest, EmptyingTheTimeEnablesTheHoursWhateverTheKind) {
  for (const int kind : {kMonday, kDaily, kDateAndTime}) {
    choose(kind);
    page.dtpScheduleTime.setValue(kMorning);

    page.dtpScheduleTime.setValue(std::nullopt);

    EXPECT_TRUE(areHoursEnabled()) << kind;
  }
}

TEST_F(ScheduleSettingsTest, ChangesOfPickersAndHoursAreEdits) {
  choose(kDateAndTime);

  schedule.markApplied();
  page.dtpScheduleDate.setValue(kMorning);
  EXPECT_TRUE(isEdited());

  schedule.markApplied();
  page.dtpScheduleTime.setValue(kMorning);
  EXPECT_TRUE(isEdited());

  schedule.markApplied();
  page.txtHours.setText("3");
  EXPECT_TRUE(isEdited());
}

TEST_F(ScheduleSettingsTest, PressingIntoAPickerAndClosingItsCalendarAreEdits) {
  choose(kDateAndTime);

  for (controls::DatePicker* picker : {&page.dtpScheduleDate, &page.dtpScheduleTime}) {
    schedule.markApplied();
    picker->click();
    EXPECT_TRUE(isEdited()) << picker->name();

    schedule.markApplied();
    picker->closeUp();
    EXPECT_TRUE(isEdited()) << picker->name();
  }
}

TEST_F(ScheduleSettingsTest, ApplyingADateWithoutOneAsksForItAndStoresNothing) {
  choose(kDate);

  page.cmdApply.click();

  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].text, "Define Date");
  EXPECT_EQ(desktop.dialogs.boxes()[0].title, "Zelvane");
  EXPECT_EQ(desktop.dialogs.boxes()[0].icon, platform::MessageIcon::none);
  EXPECT_TRUE(desktop.settings.saves().empty());
  EXPECT_TRUE(isEdited());
}

TEST_F(ScheduleSettingsTest, ApplyingADateAndTimeAsksForTheDateFirst) {
  choose(kDateAndTime);

  page.cmdApply.click();
  EXPECT_EQ(desktop.dialogs.lastText(), "Define Date");

  page.dtpScheduleDate.setValue(kMorning);
  page.cmdApply.click();
  EXPECT_EQ(desktop.dialogs.lastText(), "Define Time");

  EXPECT_TRUE(desktop.settings.saves().empty());
  EXPECT_TRUE(isEdited());
}

TEST_F(ScheduleSettingsTest, ApplyingADateDoesNotAskForATime) {
  choose(kDate);
  page.dtpScheduleDate.setValue(kMorning);

  page.cmdApply.click();

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
  EXPECT_EQ(stored("RunOn"), "8");
  EXPECT_EQ(stored("Date"), "2026-11-21");
  EXPECT_EQ(stored("Time"), "Null");
}

TEST_F(ScheduleSettingsTest, ApplyingStoresFiveTextsInTheirOrder) {
  fillIn();
  page.lblLastRunTime.setCaption("10:45:00");

  page.cmdApply.click();

  EXPECT_EQ(desktop.settings.savedKeys(),
            (std::vector<std::string>{"Date", "Time", "RunAfter", "LastRunTime", "RunOn"}));
  EXPECT_EQ(stored("Date"), "2026-11-21");
  EXPECT_EQ(stored("Time"), "08:30:00");
  EXPECT_EQ(stored("RunAfter"), "5");
  EXPECT_EQ(stored("LastRunTime"), "10:45:00");
  EXPECT_EQ(stored("RunOn"), "9");
  EXPECT_TRUE(isApplied());
}

TEST_F(ScheduleSettingsTest, WhatWasNeverRunIsStoredAsSuch) {
  choose(kNever);

  page.cmdApply.click();

  EXPECT_EQ(stored("LastRunTime"), "##:##:##");
  EXPECT_EQ(stored("RunOn"), "10");
}

TEST_F(ScheduleSettingsTest, AStoreThatRefusesIsToldAndTheEditsStay) {
  choose(kDaily);
  desktop.settings.refuseSaves();

  page.cmdApply.click();

  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 70 - Permission denied");
  EXPECT_TRUE(isEdited());
}

TEST_F(ScheduleSettingsTest, CancelBringsBackWhatWasApplied) {
  fillIn();
  page.cmdApply.click();
  choose(kNever);
  page.txtHours.setText("9");

  page.cmdCancel.click();

  EXPECT_EQ(page.cmbDays.listIndex(), kDateAndTime);
  EXPECT_EQ(page.dtpScheduleDate.value(), kMorning);
  EXPECT_EQ(page.dtpScheduleTime.value(), kMorning);
  EXPECT_EQ(page.txtHours.text(), "5");
  EXPECT_TRUE(areHoursDisabled());
  EXPECT_TRUE(isApplied());
}

TEST_F(ScheduleSettingsTest, CancelBeforeAnythingWasAppliedOnlyChoosesDaily) {
  choose(kDateAndTime);
  page.dtpScheduleTime.setValue(kMorning);
  page.txtHours.setText("9");

  page.cmdCancel.click();

  EXPECT_EQ(page.cmbDays.listIndex(), kDaily);
  EXPECT_EQ(page.dtpScheduleTime.value(), kMorning);
  EXPECT_EQ(page.txtHours.text(), "9");
  EXPECT_TRUE(isApplied());
}

TEST_F(ScheduleSettingsTest, CancelThatFailsIsToldAndTheEditsStay) {
  store("RunOn", "7");
  store("Time", "half past eight");
  choose(kDaily);

  page.cmdCancel.click();

  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 13 - Type mismatch");
  EXPECT_TRUE(isEdited());
}

TEST_F(ScheduleSettingsTest, DefaultChoosesDailyAndStoresNothingBeforeItIsApplied) {
  choose(kNever);
  schedule.markApplied();

  page.cmdDefaultSchedule.click();

  EXPECT_EQ(page.cmbDays.listIndex(), kDaily);
  EXPECT_TRUE(isEdited());
  EXPECT_TRUE(desktop.settings.saves().empty());
}

}  // namespace
}  // namespace zelvane::scheduler
