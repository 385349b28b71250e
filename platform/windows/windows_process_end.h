// Ends this process.
#pragma once

#include "platform/process_end.h"

namespace zelvane::platform {

class WindowsProcessEnd : public ProcessEnd {
 public:
  [[noreturn]] void end() override;
};

}  // namespace zelvane::platform
