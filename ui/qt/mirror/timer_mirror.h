// Ticks a timer of the program.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "core/controls/open_boxes.h"
#include "core/controls/timer.h"

namespace zelvane::qt {

// Each wait begins when the timer is enabled, when a tick has been handled, or when the last open
// box was closed, and it lasts a whole interval by the monotonic clock. So ticks come late rather
// than early, never while a box is open, and never inside the handler of the tick before, unless
// that handler switched the timer off and on.
class TimerMirror : public QObject {
 public:
  TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, QObject& parent);

 private:
  void restart();
  void expire();

  controls::Timer& control_;
  const controls::OpenBoxes& boxes_;
  QTimer timer_;
  QElapsedTimer waited_;
};

}  // namespace zelvane::qt
