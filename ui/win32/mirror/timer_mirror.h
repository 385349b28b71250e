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
//
// Where nobody sees the window, and the pace is therefore slower than the interval, one tick in
// each second of the clock on the wall is enough. Here a tick wakes the process several times: the
// system is asked for its message, whether there is another, and to wait.
class TimerMirror : public Window {
 public:
  // The pane owns it; nothing of it is seen. The form is the window that the timer belongs to.
  TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, controls::Form& form,
              Pane& parent);

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  using Clock = std::chrono::steady_clock;

  // `nextSecond` is that after the second of a tick.
  void restart(Clock::time_point nextSecond = {});
  void hasten();
  void expire();
  void waitFor(Clock::duration time);
  void waitForTheSecond(Clock::time_point now);
  void stop();

  controls::Timer& control_;
  const controls::OpenBoxes& boxes_;
  const controls::Form& form_;
  std::chrono::milliseconds pace_{};  // of the present wait
  Clock::time_point due_;
  bool waiting_ = false;
  bool everySecond_ = false;  // what the system does by itself
};

}  // namespace zelvane::win32
