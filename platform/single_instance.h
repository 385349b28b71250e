// Tells whether this program already runs for this user.
#pragma once

#include "platform/port.h"

namespace zelvane::platform {

class SingleInstance : public Port {
 public:
  // True when no other process of this user holds the claim; then this process holds it until it
  // ends, however it ends. False when another one holds it. A desktop that cannot tell answers
  // true: rather two instances than none. To be called once.
  virtual bool claim() = 0;
};

}  // namespace zelvane::platform
