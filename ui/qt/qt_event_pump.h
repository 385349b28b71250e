// Lets the toolkit's waiting events run.
#pragma once

#include <cstdint>

#include "platform/event_pump.h"

namespace zelvane::qt {

class QtEventPump : public platform::EventPump {
 public:
  void doEvents() override;

 private:
  std::int64_t delivered_ = INT64_MIN / 2;  // milliseconds of the coarse clock
};

}  // namespace zelvane::qt
