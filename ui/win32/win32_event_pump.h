// Lets the waiting messages of the windows run.
#pragma once

#include <chrono>

#include "platform/event_pump.h"

namespace zelvane::win32 {

class Win32EventPump : public platform::EventPump {
 public:
  void doEvents() override;

 private:
  using Clock = std::chrono::steady_clock;

  Clock::time_point delivered_;
};

}  // namespace zelvane::win32
