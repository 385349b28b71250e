// Ends this process.
#pragma once

#include "platform/process_end.h"

namespace zelvane::platform {

class LinuxProcessEnd : public ProcessEnd {
 public:
  [[noreturn]] void end() override;
};

}  // namespace zelvane::platform
