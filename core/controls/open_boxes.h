// How many message boxes and dialogs are open: while there is one, no timer ticks.
#pragma once

#include "core/controls/event.h"

namespace zelvane::controls {

class OpenBoxes {
 public:
  bool any() const { return count_ > 0; }

  // The last one was closed.
  Event<> allClosed;

  // A box is open as long as this lives.
  class Opening {
   public:
    explicit Opening(OpenBoxes& boxes) : boxes_(boxes) { ++boxes_.count_; }
    ~Opening() {
      if (--boxes_.count_ == 0) {
        boxes_.allClosed.raise();
      }
    }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;

   private:
    OpenBoxes& boxes_;
  };

 private:
  int count_ = 0;
};

}  // namespace zelvane::controls
