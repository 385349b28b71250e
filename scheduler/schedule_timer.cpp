#include "scheduler/schedule_timer.h"

namespace zelvane::scheduler {

ScheduleTimer::ScheduleTimer(SchedulePage& page, core::SettingsStore& settings,
                             const core::Handler& handler)
    : page_(page), settings_(settings), handler_(handler) {
  page_.tmrMakeScehduleEnable.ticked.connect([this] { tmrMakeScehduleEnable_Timer(); });
}

void ScheduleTimer::tmrMakeScehduleEnable_Timer() {
  handler_([this] {
    settings_.save(core::SettingsStore::Application::title, "Schedule", "LastRunTime",
                   page_.lblLastRunTime.caption());
  });
  // Also where the time could not be stored: told once is enough, and the schedule goes on.
  page_.tmrSchedule.setEnabled(true);
  page_.tmrMakeScehduleEnable.setEnabled(false);
}

}  // namespace zelvane::scheduler
