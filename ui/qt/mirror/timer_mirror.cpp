#include "ui/qt/mirror/timer_mirror.h"

#include <QPointer>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

TimerMirror::TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, QObject& parent)
    : QObject(&parent), control_(control), boxes_(boxes) {
  setObjectName(QString::fromStdString(control.name()));
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, [this] { expire(); });
  boxes.allClosed.connect([this, alive = QPointer<QObject>(this)] {
    if (alive) {
      restart();
    }
  });
  follow(control, *this, [this] { restart(); });
}

void TimerMirror::restart() {
  timer_.stop();
  if (control_.enabled() && !boxes_.any()) {
    waited_.start();
    timer_.start(control_.interval());
  }
}

void TimerMirror::expire() {
  if (boxes_.any()) {
    return;
  }
  const std::chrono::nanoseconds left =
      control_.interval() - std::chrono::nanoseconds(waited_.nsecsElapsed());
  if (left > std::chrono::nanoseconds::zero()) {
    timer_.start(std::chrono::ceil<std::chrono::milliseconds>(left));
    return;
  }
  control_.tick();
  if (!timer_.isActive()) {
    restart();
  }
}

}  // namespace zelvane::qt
