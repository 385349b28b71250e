// What every clock promises, whatever it is made of.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "platform/clock.h"

namespace zelvane::test {

class ClockBed {
 public:
  virtual ~ClockBed() = default;

  virtual platform::Clock& clock() = 0;

  // What a wall clock beside the tested one shows.
  virtual platform::LocalTime onTheWall() const = 0;
};

using MakeClockBed = std::unique_ptr<ClockBed> (*)();

class ClockContract : public testing::TestWithParam<MakeClockBed> {
 protected:
  static auto order(const platform::LocalTime& time) {
    return std::chrono::local_days(time.date) + time.timeOfDay;
  }

  std::unique_ptr<ClockBed> bed = GetParam()();
  platform::Clock& clock = bed->clock();
};

}  // namespace zelvane::test
