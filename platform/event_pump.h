// Lets waiting events of the window run in the middle of a long task.
#pragma once

#include "platform/port.h"

namespace zelvane::platform {

class EventPump : public Port {
 public:
  // Delivers what waits: clicks, repaints, timers. Handlers run inside this call, so the task that
  // calls it may find controls changed, a second run done, or never be returned to because the
  // program was ended. Delivers at most once in 8 ms, told by a clock that costs next to nothing,
  // so that calling it after every erased file is free. Returns at once when nothing waits.
  virtual void doEvents() = 0;
};

}  // namespace zelvane::platform
