// How often a run starts in a whole year, and why.
#include <map>
#include <string>

#include "core/text.h"
#include "scheduler/schedule_timer.h"
#include "tests/unit/scheduler/schedule_test.h"
#include "tests/unit/scheduler/simulated_year.h"

namespace zelvane::scheduler {
namespace {

using std::chrono::year;
using std::chrono::year_month_day;

class ScheduleYearTest : public ScheduleTest {
 protected:
  // A year with that kind, the time of day and the date set.
  void live(int kind, std::optional<std::chrono::seconds> time,
            std::optional<year_month_day> date = {}) {
    page.cmbDays.setListIndex(kind);
    page.dtpScheduleTime.setValue(time ? std::optional(at(year{2028} / 1 / 1, *time))
                                       : std::nullopt);
    page.dtpScheduleDate.setValue(date ? std::optional(at(*date)) : std::nullopt);
    SimulatedYear::live([this](const platform::LocalTime& now) {
      desktop.clock.set(now);
      page.tmrMakeScehduleEnable.tick();
      page.tmrSchedule.tick();
      page.tmrSchedule.tick();
    });
  }

  void lastRunAt(const std::string& caption) { page.lblLastRunTime.setCaption(caption); }

  void run() {
    const platform::LocalTime now = desktop.clock.now();
    ++runs;
    ++runsOf[now.date];
    lastRunAt(core::timeText(now.timeOfDay));
    page.tmrSchedule.setEnabled(false);
    page.tmrMakeScehduleEnable.setEnabled(true);
  }

  int runs = 0;
  std::map<year_month_day, int> runsOf;
  ScheduleTimer timer{page, settings, desktop.clock, handler, [this] { run(); }};
};

TEST_F(ScheduleYearTest, MondayRunsOnEachOf52) {
  live(0, 8h + 30min);

  EXPECT_EQ(runs, 52);
}

TEST_F(ScheduleYearTest, TuesdayRunsOnEachOf52TheLeapDayAmongThem) {
  live(1, 8h + 30min);

  EXPECT_EQ(runs, 52);
  EXPECT_EQ(runsOf[year{2028} / 2 / 29], 1);
}

TEST_F(ScheduleYearTest, WednesdayRunsOnceMoreAsTheClockIsSetBackAfterARun) {
  live(2, 8h + 30min);

  EXPECT_EQ(runs, 53);
  EXPECT_EQ(runsOf[year{2028} / 5 / 10], 2);
}

TEST_F(ScheduleYearTest, ThursdayRunsOnceLessAsTheClockIsSetForwardOverItsTime) {
  live(3, 8h + 30min);

  EXPECT_EQ(runs, 51);
  EXPECT_EQ(runsOf[year{2028} / 5 / 11], 0);
}

TEST_F(ScheduleYearTest, FridayRunsOnceLessAsTheComputerSleepsAtItsTimeAndNothingIsMadeUpFor) {
  live(4, 8h + 30min);

  EXPECT_EQ(runs, 51);
  EXPECT_EQ(runsOf[year{2028} / 5 / 12], 0);
}

TEST_F(ScheduleYearTest, SaturdayRunsOnEachOf53) {
  live(5, 8h + 30min);

  EXPECT_EQ(runs, 53);
}

TEST_F(ScheduleYearTest, SundayRunsOnEachOf53AlsoWhenSummerTimeBeginsOrEnds) {
  live(kSunday, 8h + 30min);

  EXPECT_EQ(runs, 53);
  EXPECT_EQ(runsOf[year{2028} / 3 / 26], 1);
  EXPECT_EQ(runsOf[year{2028} / 10 / 29], 1);
}

// Once each day, but for what was done to the clock: one more, two less.
TEST_F(ScheduleYearTest, DailyRunsOnEachOf366DaysButForWhatIsDoneToTheClock) {
  live(kDaily, 8h + 30min);

  EXPECT_EQ(runs, 366 + 1 - 2);
}

TEST_F(ScheduleYearTest, DailyInTheHourThatChangesIsLeftOutInSpringAndRunsTwiceInAutumn) {
  live(kDaily, 2h + 30min);

  EXPECT_EQ(runs, 366 - 1 + 1);
  EXPECT_EQ(runsOf[year{2028} / 3 / 26], 0);
  EXPECT_EQ(runsOf[year{2028} / 10 / 29], 2);
}

TEST_F(ScheduleYearTest, DailyAtMidnightRunsOnEachDay) {
  live(kDaily, 0s);

  EXPECT_EQ(runs, 366);
}

// At 12, 14, 16, 18, 20 and 22 o'clock of the first day. From then on it would have to be 24.
TEST_F(ScheduleYearTest, DailyWithTwoHoursRunsUntilTheFirstMidnightAndNeverAgain) {
  lastRunAt("10:45:00");

  live(kDaily, std::nullopt);

  EXPECT_EQ(runs, 6);
  EXPECT_EQ(runsOf[year{2028} / 1 / 1], 6);
  EXPECT_EQ(page.lblLastRunTime.caption(), "22:00:00");
}

// The first of its days is the last as well, for the same reason.
TEST_F(ScheduleYearTest, AWeekdayWithTwoHoursRunsOnTheFirstOfItsDaysAlone) {
  lastRunAt("10:45:00");

  live(0, std::nullopt);

  EXPECT_EQ(runs, 6);
  EXPECT_EQ(runsOf[year{2028} / 1 / 3], 6);
}

TEST_F(ScheduleYearTest, DailyWithoutATimeThatNeverRanNeverRuns) {
  live(kDaily, std::nullopt);

  EXPECT_EQ(runs, 0);
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(ScheduleYearTest, DateNeverRuns) {
  lastRunAt("10:45:00");

  live(kDate, std::nullopt, year{2028} / 2 / 29);

  EXPECT_EQ(runs, 0);
}

TEST_F(ScheduleYearTest, ADateAndTimeRunsOnceAlsoOnTheLeapDay) {
  live(kDateAndTime, 8h + 30min, year{2028} / 2 / 29);

  EXPECT_EQ(runs, 1);
  EXPECT_EQ(runsOf[year{2028} / 2 / 29], 1);
}

TEST_F(ScheduleYearTest, NeverNeverRuns) {
  lastRunAt("10:45:00");

  live(kNever, std::nullopt);

  EXPECT_EQ(runs, 0);
}

}  // namespace
}  // namespace zelvane::scheduler
