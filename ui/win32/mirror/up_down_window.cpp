#include "ui/win32/mirror/up_down_window.h"

#include <commctrl.h>

#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

// The arrows have a position of their own. It stays in the middle, so that both always work: what
// they count, and how far, is the control's to say.
UpDownWindow::UpDownWindow(controls::UpDown& control, Window& box, Pane& parent)
    : Window({UPDOWN_CLASSW, WS_CHILD | WS_VISIBLE | UDS_ARROWKEYS}, parent), control_(control) {
  parent.whenMade([this, &box] {
    SendMessageW(handle(), UDM_SETRANGE32, 0, 2);
    SendMessageW(handle(), UDM_SETPOS32, 0, 1);
    SendMessageW(handle(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(box.handle()), 0);
    placeAnew();
  });
  mirrorControl(control, *this);
}

// When it is made it takes a width of its own choice.
void UpDownWindow::placeAnew() {
  const Area wanted = area();
  place({});
  place(wanted);
}

Size UpDownWindow::natural() const {
  return {GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()), look().lineHeight()};
}

std::optional<LRESULT> UpDownWindow::onNotify(const NMHDR& notice) {
  if (notice.code != static_cast<UINT>(UDN_DELTAPOS)) {
    return std::nullopt;
  }
  const int steps = reinterpret_cast<const NMUPDOWN&>(notice).iDelta;
  control_.step(steps > 0 ? 1 : -1);
  return TRUE;  // no change of its own position
}

}  // namespace zelvane::win32
