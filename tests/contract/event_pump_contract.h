// What every event pump promises.
#pragma once

#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "platform/event_pump.h"

namespace zelvane::test {

class EventPumpBed {
 public:
  virtual ~EventPumpBed() = default;

  virtual platform::EventPump& pump() = 0;

  // Something that waits to be delivered from now on.
  virtual void post(std::function<void()> event) = 0;
};

using MakeEventPumpBed = std::unique_ptr<EventPumpBed> (*)();

class EventPumpContract : public testing::TestWithParam<MakeEventPumpBed> {
 protected:
  // Calls as a long task does, until `done`. A pump that never delivers fails here.
  void pumpUntil(const std::function<bool()>& done) {
    constexpr long kManyTimes = 200'000'000;
    for (long call = 0; call < kManyTimes && !done(); ++call) {
      bed->pump().doEvents();
    }
    ASSERT_TRUE(done());
  }

  std::unique_ptr<EventPumpBed> bed = GetParam()();
};

}  // namespace zelvane::test
