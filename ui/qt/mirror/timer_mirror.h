// Ticks a timer of the program.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "core/controls/form.h"
#include "core/controls/open_boxes.h"
#include "core/controls/timer.h"

namespace zelvane::qt {

// Each wait begins when the timer is enabled, when a tick has been handled, or when the last open
// box was closed, and it lasts as long as `paceOf` says by the monotonic clock. So ticks come late
// rather than early, never while a box is open, and never inside the handler of the tick before,
// unless that handler switched the timer off and on.
class TimerMirror : public QObject {
 public:
  // The form is the window that the timer belongs to.
  TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, controls::Form& form,
              QObject& parent);

 private:
  void restart();
  void hasten();
  void expire();

  controls::Timer& control_;
  const controls::OpenBoxes& boxes_;
  const controls::Form& form_;
  QTimer timer_;
  std::chrono::milliseconds wait_{};
  QElapsedTimer waited_;
};

}  // namespace zelvane::qt
