#include "ui/qt/mirror/timer_mirror.h"

#include <QPointer>

#include "core/controls/timer_pace.h"
#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

TimerMirror::TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, controls::Form& form,
                         QObject& parent)
    : QObject(&parent), control_(control), boxes_(boxes), form_(form) {
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
  follow(form, *this, [this] { hasten(); });
}

void TimerMirror::restart() {
  timer_.stop();
  if (control_.enabled() && !boxes_.any()) {
    wait_ = controls::paceOf(control_, form_);
    waited_.start();
    timer_.start(wait_);
  }
}

// The window is seen again: a usual wait takes the place of a long one.
void TimerMirror::hasten() {
  if (timer_.isActive() && controls::paceOf(control_, form_) < wait_) {
    restart();
  }
}

void TimerMirror::expire() {
  if (boxes_.any()) {
    return;
  }
  const std::chrono::nanoseconds left = wait_ - std::chrono::nanoseconds(waited_.nsecsElapsed());
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
