// The end of the program without the end of the test.
#pragma once

#include "platform/process_end.h"

namespace zelvane::platform {

// Thrown through every frame of the program up to the test. It derives from nothing, so that what
// catches the program's errors cannot catch it.
struct ProcessEnded {};

class MemoryProcessEnd : public ProcessEnd {
 public:
  [[noreturn]] void end() override {
    ended_ = true;
    throw ProcessEnded{};
  }

  bool ended() const { return ended_; }

 private:
  bool ended_ = false;
};

}  // namespace zelvane::platform
