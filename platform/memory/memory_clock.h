// A wall clock that stands still until a test moves it.
#pragma once

#include <chrono>

#include "platform/clock.h"

namespace zelvane::platform {

class MemoryClock : public Clock {
 public:
  LocalTime now() const override {
    const auto midnight = std::chrono::floor<std::chrono::days>(now_);
    return {std::chrono::year_month_day(midnight), now_ - midnight};
  }

  void set(const LocalTime& time) { now_ = std::chrono::local_days(time.date) + time.timeOfDay; }

  // Past midnight the date moves on; a negative step moves back.
  void advance(std::chrono::seconds step) { now_ += step; }

 private:
  // Noon of Saturday, 21 November 2026.
  std::chrono::local_seconds now_ =
      std::chrono::local_days(std::chrono::year_month_day(
          std::chrono::year(2026), std::chrono::November, std::chrono::day(21))) +
      std::chrono::hours(12);
};

}  // namespace zelvane::platform
