// The end of the program.
#pragma once

#include "platform/port.h"

namespace zelvane::platform {

class ProcessEnd : public Port {
 public:
  // Ends the process at once, wherever it stands, with exit status 0. Nothing is unwound and
  // nothing is flushed: whatever must last is on disk already, because every durable write is
  // atomic, so that this equals being killed.
  [[noreturn]] virtual void end() = 0;
};

}  // namespace zelvane::platform
