#include "ui/win32/mirror/timer_mirror.h"

#include "core/controls/timer_pace.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

constexpr UINT_PTR kTimer = 1;

}  // namespace

TimerMirror::TimerMirror(controls::Timer& control, controls::OpenBoxes& boxes, controls::Form& form,
                         Pane& parent)
    : Window({kPaneClass, 0}, HWND_MESSAGE, parent.look()),
      control_(control),
      boxes_(boxes),
      form_(form) {
  setControl(control);
  boxes.allClosed.connect([this, window = handle()] {
    if (Window::of(window) == this) {
      restart();
    }
  });
  follow(control, *this, [this] { restart(); });
  follow(form, *this, [this] { hasten(); });
}

void TimerMirror::restart() {
  KillTimer(handle(), kTimer);
  waiting_ = control_.enabled() && !boxes_.any();
  if (waiting_) {
    wait_ = controls::paceOf(control_, form_);
    due_ = Clock::now() + wait_;
    waitFor(wait_);
  }
}

// The window is seen again: a usual wait takes the place of a long one.
void TimerMirror::hasten() {
  if (waiting_ && controls::paceOf(control_, form_) < wait_) {
    restart();
  }
}

void TimerMirror::waitFor(Clock::duration time) {
  const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(time);
  SetTimer(handle(), kTimer, static_cast<UINT>(milliseconds.count()), nullptr);
}

// The system's timers go on by themselves and may be early by one of its ticks.
void TimerMirror::expire() {
  KillTimer(handle(), kTimer);
  if (!waiting_ || boxes_.any()) {
    return;
  }
  const Clock::duration left = due_ - Clock::now();
  if (left > Clock::duration::zero()) {
    waitFor(left);
    return;
  }
  waiting_ = false;
  control_.tick();
  if (!waiting_) {
    restart();
  }
}

LRESULT TimerMirror::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_TIMER && word == kTimer) {
    expire();
    return 0;
  }
  return Window::onMessage(message, word, value);
}

}  // namespace zelvane::win32
