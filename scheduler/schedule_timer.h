// The two timers that start a cleaning run and arm themselves again after it.
#pragma once

#include <functional>

#include "core/handler.h"
#include "core/settings_store.h"
#include "platform/clock.h"
#include "scheduler/repeated_failure.h"
#include "scheduler/schedule_page.h"

namespace zelvane::scheduler {

// A run, by hand or by the schedule, switches both timers off. At its end it enables the one-second
// timer alone, so that the second in which the run started has passed before the schedule is armed
// again, and one second cannot start two runs.
class ScheduleTimer {
 public:
  // `startRun` does what the button for a run does.
  ScheduleTimer(SchedulePage& page, core::SettingsStore& settings, const platform::Clock& clock,
                const core::Handler& handler, std::function<void()> startRun);

  // Starts a run if this is the moment. A time picker that holds a time means that very second; an
  // empty one, that so many hours have struck since the last run as the hours box says, both on one
  // day: after midnight the number is negative, and what is due is due no more. "Date" never runs:
  // it asks for a day of the time picker, which it leaves empty.
  //
  // What cannot be understood (no time of a last run to count from, hours that are no number) is
  // told, once and not with every tick (`RepeatedFailure`), and the timer stays enabled.
  void tmrSchedule_Timer();

  // One second after a run: stores when it started, and arms the schedule.
  void tmrMakeScehduleEnable_Timer();

 private:
  bool isTheMoment() const;
  bool isTimeOrHours(const platform::LocalTime& now) const;
  bool isTheTime(const platform::LocalTime& now) const;
  bool areTheHours(const platform::LocalTime& now) const;

  SchedulePage& page_;
  core::SettingsStore& settings_;
  const platform::Clock& clock_;
  core::Handler handler_;
  std::function<void()> startRun_;
  RepeatedFailure failure_;
};

}  // namespace zelvane::scheduler
