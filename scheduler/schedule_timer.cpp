#include "scheduler/schedule_timer.h"

#include <utility>

#include "core/numbers.h"
#include "core/text.h"
#include "scheduler/schedule_kind.h"
#include "scheduler/time_of_day.h"

namespace zelvane::scheduler {

ScheduleTimer::ScheduleTimer(SchedulePage& page, core::SettingsStore& settings,
                             const platform::Clock& clock, const core::Handler& handler,
                             std::function<void()> startRun)
    : page_(page),
      settings_(settings),
      clock_(clock),
      handler_(handler),
      startRun_(std::move(startRun)) {
  page_.tmrSchedule.ticked.connect([this] { tmrSchedule_Timer(); });
  page_.tmrMakeScehduleEnable.ticked.connect([this] { tmrMakeScehduleEnable_Timer(); });
}

void ScheduleTimer::tmrSchedule_Timer() {
  handler_([this] {
    bool start = false;
    try {
      start = isTheMoment();
      failure_.over();
    } catch (const platform::Error& failure) {
      if (failure_.isNews(failure, clock_.now())) {
        throw;
      }
    }
    if (start) {
      startRun_();
    }
  });
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

bool ScheduleTimer::isTheMoment() const {
  const int kind = page_.cmbDays.listIndex();
  if (isWeekday(kind)) {
    const platform::LocalTime now = clock_.now();
    return core::weekdayName(std::chrono::weekday(now.date)) == page_.cmbDays.text() &&
           isTimeOrHours(now);
  }
  if (kind == kDaily) {
    const bool everRun = page_.lblLastRunTime.caption() != kNeverRun;
    return (everRun || page_.dtpScheduleTime.value()) && isTimeOrHours(clock_.now());
  }
  if (kind == kDateAndTime) {
    const platform::LocalTime now = clock_.now();
    const auto date = page_.dtpScheduleDate.value();
    return date && date->date == now.date && isTheTime(now);
  }
  return false;
}

bool ScheduleTimer::isTimeOrHours(const platform::LocalTime& now) const {
  return page_.dtpScheduleTime.value() ? isTheTime(now) : areTheHours(now);
}

bool ScheduleTimer::isTheTime(const platform::LocalTime& now) const {
  const auto time = page_.dtpScheduleTime.value();
  return time && time->timeOfDay == now.timeOfDay;
}

bool ScheduleTimer::areTheHours(const platform::LocalTime& now) const {
  const int hours = hoursBetween(parseTimeOfDay(page_.lblLastRunTime.caption()), now.timeOfDay);
  return hours == core::toNumber(page_.txtHours.text());
}

}  // namespace zelvane::scheduler
