#include "scheduler/schedule_timer.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_desktop.h"

namespace zelvane::scheduler {
namespace {

class ScheduleTimerTest : public testing::Test {
 protected:
  ScheduleTimerTest() {
    // As a run leaves them.
    page.tmrSchedule.setEnabled(false);
    page.tmrMakeScehduleEnable.setEnabled(true);
    page.lblLastRunTime.setCaption("09:05:07");
  }

  platform::MemoryDesktop desktop;
  core::SettingsStore settings{desktop.settings, desktop.identity};
  core::Handler handler{desktop.dialogs, desktop.identity};
  SchedulePage page;
  ScheduleTimer timer{page, settings, handler};
};

TEST_F(ScheduleTimerTest, OneSecondAfterARunItsStartIsStoredAndTheScheduleArmed) {
  page.tmrMakeScehduleEnable.tick();

  EXPECT_EQ(desktop.settings.find("Schedule", "LastRunTime"), "09:05:07");
  EXPECT_TRUE(page.tmrSchedule.enabled());
  EXPECT_FALSE(page.tmrMakeScehduleEnable.enabled());
}

TEST_F(ScheduleTimerTest, ItTicksOnce) {
  page.tmrMakeScehduleEnable.tick();
  desktop.settings.forgetSaves();

  page.tmrMakeScehduleEnable.tick();

  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(ScheduleTimerTest, AStoreThatRefusesIsToldOnceAndTheScheduleIsArmedAllTheSame) {
  desktop.settings.refuseSaves();

  page.tmrMakeScehduleEnable.tick();
  page.tmrMakeScehduleEnable.tick();

  EXPECT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 70 - Permission denied");
  EXPECT_TRUE(page.tmrSchedule.enabled());
}

}  // namespace
}  // namespace zelvane::scheduler
