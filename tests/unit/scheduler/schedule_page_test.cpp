#include "scheduler/schedule_page.h"

#include <gtest/gtest.h>

namespace zelvane::scheduler {
namespace {

using namespace std::chrono_literals;

TEST(SchedulePage, StartsAsDesigned) {
  const SchedulePage page;

  EXPECT_EQ(
      page.cmbDays.items(),
      (std::vector<std::string>{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday",
                                "Sunday", "Daily", "Date", "Date & Time", "Never!"}));
  EXPECT_EQ(page.txtHours.text(), "2");
  EXPECT_EQ(page.lblLastRun.caption(), "Last Run  Time:");
  EXPECT_EQ(page.lblLastRunTime.caption(), "##:##:##");
  EXPECT_FALSE(page.cmdApply.enabled());
  EXPECT_FALSE(page.cmdCancel.enabled());
  EXPECT_EQ(page.dtpScheduleDate.value(), std::nullopt);
  EXPECT_EQ(page.dtpScheduleTime.value(), std::nullopt);
}

TEST(SchedulePage, ItsTimersHaveTheirIntervals) {
  const SchedulePage page;

  EXPECT_EQ(page.tmrSchedule.interval(), 10ms);
  EXPECT_TRUE(page.tmrSchedule.enabled());
  EXPECT_EQ(page.tmrMakeScehduleEnable.interval(), 1000ms);
  EXPECT_FALSE(page.tmrMakeScehduleEnable.enabled());
}

}  // namespace
}  // namespace zelvane::scheduler
