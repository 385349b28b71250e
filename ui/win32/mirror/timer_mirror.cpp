#include "ui/win32/mirror/timer_mirror.h"

#include "core/controls/timer_pace.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr UINT_PTR kTimer = 1;

// Where in a second of the clock on the wall its one tick is: so late that a timer which the system
// lets go a little early is still in it, and so early that one which comes late is in it, too.
constexpr milliseconds kIntoTheSecond(20);
constexpr milliseconds kLatestIntoTheSecond(100);

std::chrono::system_clock::duration sinceTheSecondBegan() {
  const auto now = std::chrono::system_clock::now();
  return now - std::chrono::floor<seconds>(now);
}

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

void TimerMirror::restart(Clock::time_point nextSecond) {
  waiting_ = control_.enabled() && !boxes_.any();
  if (!waiting_) {
    stop();
    return;
  }
  pace_ = controls::paceOf(control_, form_);
  const Clock::time_point now = Clock::now();
  due_ = now + pace_;
  if (pace_ > control_.interval() && nextSecond > due_) {
    due_ = nextSecond;
    waitForTheSecond(now);
  } else {
    waitFor(pace_);
  }
}

// The window is seen again: a usual wait takes the place of a long one.
void TimerMirror::hasten() {
  if (waiting_ && controls::paceOf(control_, form_) < pace_) {
    restart();
  }
}

void TimerMirror::waitFor(Clock::duration time) {
  everySecond_ = false;
  const auto wait = std::chrono::ceil<milliseconds>(time);
  SetTimer(handle(), kTimer, static_cast<UINT>(wait.count()), nullptr);
}

// The system's timers go on by themselves. One that comes in time every second is left alone.
void TimerMirror::waitForTheSecond(Clock::time_point now) {
  if (now + seconds(1) > due_ + kLatestIntoTheSecond) {
    waitFor(due_ + kIntoTheSecond - now);
  } else if (!everySecond_) {
    waitFor(seconds(1));
    everySecond_ = true;
  }
}

void TimerMirror::stop() {
  everySecond_ = false;
  KillTimer(handle(), kTimer);
}

// The system's timers may be early by one of its ticks.
void TimerMirror::expire() {
  if (!waiting_ || boxes_.any()) {
    stop();
    return;
  }
  const Clock::time_point now = Clock::now();
  if (now < due_) {
    waitFor(due_ - now);
    return;
  }
  const Clock::time_point nextSecond = now - sinceTheSecondBegan() + seconds(1);
  waiting_ = false;
  control_.tick();
  if (!waiting_) {
    restart(nextSecond);
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
