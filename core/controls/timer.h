// Something that happens again and again while it is enabled.
#pragma once

#include <chrono>

#include "core/controls/control.h"

namespace zelvane::controls {

// The shell ticks it: never before a whole interval has passed since it was enabled or since the
// last tick, late rather than early (later where nobody sees the window, see `timer_pace.h`), and
// not at all while a message box or a dialog is open.
class Timer : public Control {
 public:
  Timer(Page& page, std::string name, std::chrono::milliseconds interval, bool enabled)
      : Control(page, std::move(name)), interval_(interval) {
    setEnabled(enabled);
  }

  std::chrono::milliseconds interval() const { return interval_; }

  // One interval has passed. A disabled timer ignores it.
  void tick() {
    if (enabled()) {
      ticked.raise();
    }
  }

  Event<> ticked;

 private:
  std::chrono::milliseconds interval_;
};

}  // namespace zelvane::controls
