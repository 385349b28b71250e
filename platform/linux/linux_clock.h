// The system's clock in the time zone of the user's system.
#pragma once

#include <ctime>

#include "platform/clock.h"

namespace zelvane::platform {

class LinuxClock : public Clock {
 public:
  LocalTime now() const override;
};

// What a wall clock in the user's time zone shows at this second since 1970. The zone is looked up
// each time, because a user may travel while the program runs.
LocalTime localTimeAt(std::time_t second);

}  // namespace zelvane::platform
