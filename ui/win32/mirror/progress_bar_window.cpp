#include "ui/win32/mirror/progress_bar_window.h"

#include <cmath>

#include <commctrl.h>

#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

ProgressBarWindow::ProgressBarWindow(controls::ProgressBar& control, Pane& parent)
    : Window({PROGRESS_CLASSW, WS_CHILD | WS_VISIBLE}, parent) {
  constexpr int kWhole = 1000;
  whenMade([this] { SendMessageW(handle(), PBM_SETRANGE32, 0, kWhole); });
  mirrorControl(control, *this);
  followOnceMade(control, *this, [this, &control] {
    SendMessageW(handle(), PBM_SETPOS,
                 static_cast<WPARAM>(std::lround(control.fraction() * kWhole)), 0);
  });
}

Size ProgressBarWindow::natural() const {
  return {look().letters(20), look().lineHeight() + look().scaled(2)};
}

}  // namespace zelvane::win32
