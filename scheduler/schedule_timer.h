// The two timers that start a cleaning run and arm themselves again after it.
#pragma once

#include "core/handler.h"
#include "core/settings_store.h"
#include "scheduler/schedule_page.h"

namespace zelvane::scheduler {

// A run, by hand or by the schedule, switches both timers off. At its end it enables the one-second
// timer alone, so that the second in which the run started has passed before the schedule is armed
// again, and one second cannot start two runs.
class ScheduleTimer {
 public:
  ScheduleTimer(SchedulePage& page, core::SettingsStore& settings, const core::Handler& handler);

  // One second after a run: stores when it started, and arms the schedule.
  void tmrMakeScehduleEnable_Timer();

 private:
  SchedulePage& page_;
  core::SettingsStore& settings_;
  core::Handler handler_;
};

}  // namespace zelvane::scheduler
