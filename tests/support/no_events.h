// An event pump for where there is no window whose events could wait.
#pragma once

#include "platform/event_pump.h"

namespace zelvane::test {

class NoEvents : public platform::EventPump {
 public:
  void doEvents() override {}
};

}  // namespace zelvane::test
