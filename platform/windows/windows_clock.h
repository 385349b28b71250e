// The system's clock in the time zone of the user's system.
#pragma once

#include <windows.h>

#include "platform/clock.h"

namespace zelvane::platform {

class WindowsClock : public Clock {
 public:
  LocalTime now() const override;
};

// What a wall clock shows at this moment in a zone, or in the system's present one. Throws where
// the system knows no such moment.
LocalTime localTimeAt(const FILETIME& moment, const TIME_ZONE_INFORMATION* zone = nullptr);

}  // namespace zelvane::platform
