// Ticks a timer of the program.
#pragma once

#include <chrono>

#include "core/controls/form.h"
#include "core/controls/open_boxes.h"
#include "core/controls/timer.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Each wait begins when the timer is enabled, when a tick has been handled, or when the last open
// box was closed, and it lasts as long as `paceOf` says by the monotonic clock. So ticks come late
// rather than early, never while a box is open, and never inside the handler of the tick before,
// unless that handler switched the timer off and on.
class TimerMirror : public Window {
 public:
  // The pane owns it; nothing of it is seen. The form is the window that the timer belongs to.
  TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, controls::Form& form,
              Pane& parent);

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  using Clock = std::chrono::steady_clock;

  void restart();
  void hasten();
  void expire();
  void waitFor(Clock::duration time);

  controls::Timer& control_;
  const controls::OpenBoxes& boxes_;
  const controls::Form& form_;
  std::chrono::milliseconds wait_{};
  Clock::time_point due_;
  bool waiting_ = false;
};

}  // namespace zelvane::win32
