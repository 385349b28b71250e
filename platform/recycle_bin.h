// Every place where the desktop's deleted files wait to be restored.
#pragma once

#include <cstdint>

#include "platform/port.h"

namespace zelvane::platform {

class EventPump;

class RecycleBin : public Port {
 public:
  // Empties the bin of every mounted volume; asks nothing, follows no link. Returns the bytes
  // freed, 0 for an empty bin. Waiting events are delivered through `pump` as often as the desktop
  // lets us in. What refuses to go stays, with the note that says where it came
  // from, and does not stop the rest: permissionDenied is thrown after the last one.
  virtual std::uint64_t empty(EventPump& pump) = 0;
};

}  // namespace zelvane::platform
