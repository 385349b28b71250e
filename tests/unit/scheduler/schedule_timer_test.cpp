#include "scheduler/schedule_timer.h"

#include <vector>

#include "core/text.h"
#include "tests/unit/scheduler/schedule_test.h"

namespace zelvane::scheduler {
namespace {

using std::chrono::year;

class ScheduleTimerTest : public ScheduleTest {
 protected:
  static constexpr auto kSaturday = year{2026} / 11 / 21;
  static constexpr auto kSunday = year{2026} / 11 / 22;
  static constexpr int kSaturdaysKind = 5;

  void choose(int kind, std::optional<std::chrono::seconds> time = {},
              std::optional<std::chrono::year_month_day> date = {}) {
    page.cmbDays.setListIndex(kind);
    page.dtpScheduleTime.setValue(time ? std::optional(at(kSaturday, *time)) : std::nullopt);
    page.dtpScheduleDate.setValue(date ? std::optional(at(*date)) : std::nullopt);
  }

  void lastRunAt(const std::string& caption) { page.lblLastRunTime.setCaption(caption); }

  // How many runs start with one tick then.
  int runsAt(std::chrono::year_month_day date, std::chrono::seconds timeOfDay) {
    const int before = runs;
    desktop.clock.set(at(date, timeOfDay));
    page.tmrSchedule.tick();
    return runs - before;
  }

  // Lets a second pass in which both timers tick as they do, a hundred times and once.
  void passASecond() {
    const bool armsAfterwards = page.tmrMakeScehduleEnable.enabled();
    for (int tick = 0; tick < 100; ++tick) {
      page.tmrSchedule.tick();
    }
    desktop.clock.advance(1s);
    if (armsAfterwards) {
      page.tmrMakeScehduleEnable.tick();
    }
  }

  // What a run does to the schedule.
  void run() {
    ++runs;
    starts.push_back(core::timeText(desktop.clock.now().timeOfDay));
    lastRunAt(starts.back());
    page.tmrSchedule.setEnabled(false);
    page.tmrMakeScehduleEnable.setEnabled(true);
  }

  void arm() { page.tmrMakeScehduleEnable.tick(); }

  int runs = 0;
  std::vector<std::string> starts;
  ScheduleTimer timer{page, settings, desktop.clock, handler, [this] { run(); }};
};

TEST_F(ScheduleTimerTest, ATimeStartsOneRunThoughItsSecondIsSeenAHundredTimes) {
  choose(kDaily, 8h + 30min);
  desktop.clock.set(at(kSaturday, 8h + 29min + 50s));

  for (int second = 0; second < 20; ++second) {
    passASecond();
  }

  EXPECT_EQ(starts, std::vector<std::string>{"08:30:00"});
  EXPECT_TRUE(page.tmrSchedule.enabled());
}

TEST_F(ScheduleTimerTest, ATimeIsMetByItsSecondAlone) {
  choose(kDaily, 8h + 30min);

  EXPECT_EQ(runsAt(kSaturday, 8h + 29min + 59s), 0);
  EXPECT_EQ(runsAt(kSaturday, 8h + 30min + 1s), 0);
  EXPECT_EQ(runsAt(kSaturday, 20h + 30min), 0);
  EXPECT_EQ(runsAt(kSaturday, 8h + 30min), 1);
}

TEST_F(ScheduleTimerTest, ATimeNeedsNeitherALastRunNorHours) {
  choose(kDaily, 8h + 30min);
  lastRunAt("##:##:##");
  page.txtHours.setText("");

  EXPECT_EQ(runsAt(kSaturday, 8h + 30min), 1);
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(ScheduleTimerTest, TwoHoursStrikeAtTwelveForARunAtAQuarterToEleven) {
  choose(kDaily);
  lastRunAt("10:45:00");

  EXPECT_EQ(runsAt(kSaturday, 11h + 59min + 59s), 0);
  EXPECT_EQ(runsAt(kSaturday, 12h), 1);
}

TEST_F(ScheduleTimerTest, HoursAreMetForAWholeHourAndNotLater) {
  choose(kDaily);
  lastRunAt("10:45:00");
  EXPECT_EQ(runsAt(kSaturday, 13h), 0);

  EXPECT_EQ(runsAt(kSaturday, 12h + 59min + 59s), 1);
}

TEST_F(ScheduleTimerTest, HoursAreNumbersAndNotTexts) {
  for (const char* two : {"2", " 2 ", "2.0", "+2", "02", "0.2e1"}) {
    choose(kDaily);
    lastRunAt("10:45:00");
    page.txtHours.setText(two);

    EXPECT_EQ(runsAt(kSaturday, 12h), 1) << two;
    arm();
  }
}

TEST_F(ScheduleTimerTest, HalfAnHourNeverStrikes) {
  choose(kDaily);
  lastRunAt("10:45:00");
  page.txtHours.setText("1.5");

  EXPECT_EQ(runsAt(kSaturday, 12h), 0);
  EXPECT_EQ(runsAt(kSaturday, 12h + 15min), 0);
}

TEST_F(ScheduleTimerTest, AfterMidnightTheHoursAreNegativeAndNothingIsDue) {
  choose(kDaily);
  lastRunAt("23:30:00");

  for (std::chrono::seconds hour = 0h; hour < 23h; hour += 1h) {
    EXPECT_EQ(runsAt(kSunday, hour), 0);
  }
  page.txtHours.setText("-22");
  EXPECT_EQ(runsAt(kSunday, 1h), 1);
}

TEST_F(ScheduleTimerTest, NoHoursAtAllRunAgainAndAgain) {
  choose(kDaily);
  lastRunAt("10:45:00");
  page.txtHours.setText("0");
  desktop.clock.set(at(kSaturday, 10h + 50min));

  for (int second = 0; second < 6; ++second) {
    passASecond();
  }

  EXPECT_EQ(starts, (std::vector<std::string>{"10:50:00", "10:50:02", "10:50:04"}));
}

TEST_F(ScheduleTimerTest, DailyThatNeverRanStartsNothingAndIsNoError) {
  choose(kDaily);
  page.txtHours.setText("abc");

  EXPECT_EQ(runsAt(kSaturday, 12h), 0);
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(ScheduleTimerTest, AWeekdayRunsOnItsDayAlone) {
  for (int kind = kMonday; kind <= scheduler::kSunday; ++kind) {
    choose(kind, 8h + 30min);

    EXPECT_EQ(runsAt(kSaturday, 8h + 30min), kind == kSaturdaysKind ? 1 : 0) << kind;
    arm();
  }
}

TEST_F(ScheduleTimerTest, AWeekdayThatNeverRanIsAnErrorOnItsDayAlone) {
  choose(kSaturdaysKind);

  EXPECT_EQ(runsAt(kSunday, 12h), 0);
  EXPECT_TRUE(desktop.dialogs.boxes().empty());

  EXPECT_EQ(runsAt(kSaturday, 12h), 0);
  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].text, "Error: 13 - Type mismatch");
  EXPECT_EQ(desktop.dialogs.boxes()[0].title, "Zelvane");
  EXPECT_TRUE(page.tmrSchedule.enabled());
}

TEST_F(ScheduleTimerTest, AnErrorThatGoesOnLeavesThePageToItsUserForAMinute) {
  choose(kSaturdaysKind);
  desktop.clock.set(at(kSaturday, 12h));

  for (int second = 0; second < 60; ++second) {
    passASecond();
  }
  EXPECT_EQ(desktop.dialogs.boxes().size(), 1U);

  passASecond();
  EXPECT_EQ(desktop.dialogs.boxes().size(), 2U);
}

TEST_F(ScheduleTimerTest, AnErrorThatIsMendedIsToldAtOnceWhenItComesBack) {
  choose(kDaily);
  lastRunAt("10:45:00");
  for (const char* hours : {"", "5", ""}) {
    page.txtHours.setText(hours);
    runsAt(kSaturday, 12h);
  }

  EXPECT_EQ(desktop.dialogs.boxes().size(), 2U);
}

TEST_F(ScheduleTimerTest, HoursThatAreNoNumberAreAnError) {
  for (const char* hours : {"", "abc", "2 hrs.", "1,5"}) {
    choose(kDaily);
    lastRunAt("10:45:00");
    page.txtHours.setText("5");
    runsAt(kSaturday, 12h);
    const std::size_t before = desktop.dialogs.boxes().size();

    page.txtHours.setText(hours);

    EXPECT_EQ(runsAt(kSaturday, 12h), 0) << hours;
    EXPECT_EQ(desktop.dialogs.boxes().size(), before + 1) << hours;
    EXPECT_EQ(desktop.dialogs.lastText(), "Error: 13 - Type mismatch") << hours;
  }
}

TEST_F(ScheduleTimerTest, AnEmptyTimeOfTheLastRunIsAnErrorOfDailyToo) {
  choose(kDaily);
  lastRunAt("");

  EXPECT_EQ(runsAt(kSaturday, 12h), 0);
  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 13 - Type mismatch");
}

TEST_F(ScheduleTimerTest, DateNeverRuns) {
  lastRunAt("10:45:00");
  for (const auto time : {std::optional<std::chrono::seconds>(), std::optional(12h + 0s)}) {
    for (const auto date : {kSaturday, kSunday}) {
      choose(kDate, time, date);

      EXPECT_EQ(runsAt(kSaturday, 12h), 0);
      EXPECT_EQ(runsAt(kSunday, 12h), 0);
    }
  }
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(ScheduleTimerTest, ADateAndTimeRunsOnceOnItsDayAndSecond) {
  choose(kDateAndTime, 8h + 30min, kSunday);
  EXPECT_EQ(runsAt(kSaturday, 8h + 30min), 0);
  EXPECT_EQ(runsAt(kSunday, 8h + 29min + 59s), 0);

  desktop.clock.set(at(kSunday, 8h + 30min));
  for (int second = 0; second < 5; ++second) {
    passASecond();
  }

  EXPECT_EQ(starts, std::vector<std::string>{"08:30:00"});
}

TEST_F(ScheduleTimerTest, ADateAndTimeOfWhichOneIsEmptyNeverRunsAndIsNoError) {
  choose(kDateAndTime, std::nullopt, kSaturday);
  EXPECT_EQ(runsAt(kSaturday, 0h), 0);

  choose(kDateAndTime, 12h);
  EXPECT_EQ(runsAt(kSaturday, 12h), 0);
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(ScheduleTimerTest, NeverAndNothingDoNothing) {
  lastRunAt("10:45:00");
  for (const int kind : {kNever, controls::ComboBox::kNothing}) {
    choose(kind, 12h, kSaturday);
    EXPECT_EQ(runsAt(kSaturday, 12h), 0);

    choose(kind);
    EXPECT_EQ(runsAt(kSaturday, 12h), 0);
  }
}

TEST_F(ScheduleTimerTest, WhatWasNotAppliedYetCountsAsWell) {
  choose(kDaily, 12h);
  page.cmdApply.setEnabled(true);

  EXPECT_EQ(runsAt(kSaturday, 12h), 1);
}

TEST_F(ScheduleTimerTest, WhileARunIsUnderWayNothingIsDue) {
  choose(kDaily, 12h);
  page.tmrSchedule.setEnabled(false);

  EXPECT_EQ(runsAt(kSaturday, 12h), 0);
}

TEST_F(ScheduleTimerTest, OneSecondAfterARunItsStartIsStoredAndTheScheduleArmed) {
  choose(kDaily, 9h + 5min + 7s);
  runsAt(kSaturday, 9h + 5min + 7s);
  EXPECT_EQ(stored("LastRunTime"), std::nullopt);

  page.tmrMakeScehduleEnable.tick();

  EXPECT_EQ(stored("LastRunTime"), "09:05:07");
  EXPECT_TRUE(page.tmrSchedule.enabled());
  EXPECT_FALSE(page.tmrMakeScehduleEnable.enabled());
}

TEST_F(ScheduleTimerTest, TheOneSecondTimerTicksOnce) {
  run();
  page.tmrMakeScehduleEnable.tick();
  desktop.settings.forgetSaves();

  page.tmrMakeScehduleEnable.tick();

  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(ScheduleTimerTest, AStoreThatRefusesIsToldOnceAndTheScheduleIsArmedAllTheSame) {
  desktop.settings.refuseSaves();
  run();

  page.tmrMakeScehduleEnable.tick();
  page.tmrMakeScehduleEnable.tick();

  EXPECT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 70 - Permission denied");
  EXPECT_TRUE(page.tmrSchedule.enabled());
}

}  // namespace
}  // namespace zelvane::scheduler
