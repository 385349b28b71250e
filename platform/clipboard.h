// What the user copied last.
#pragma once

#include "platform/port.h"

namespace zelvane::platform {

class Clipboard : public Port {
 public:
  // Empties every selection that the desktop keeps for pasting. An empty one stays empty.
  virtual void clear() = 0;
};

}  // namespace zelvane::platform
