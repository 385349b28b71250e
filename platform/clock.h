// The user's wall clock. All time in the program comes from here.
#pragma once

#include "platform/local_time.h"
#include "platform/port.h"

namespace zelvane::platform {

class Clock : public Port {
 public:
  // The present date and time in the user's time zone, cut (not rounded) to the second.
  virtual LocalTime now() const = 0;
};

}  // namespace zelvane::platform
