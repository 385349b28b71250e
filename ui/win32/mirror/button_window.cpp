#include "ui/win32/mirror/button_window.h"

#include <algorithm>

#include <commctrl.h>

#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

ButtonWindow::ButtonWindow(controls::Button& control, Pane& parent)
    : Window({WC_BUTTONW, WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | BS_PUSHBUTTON}, parent),
      control_(control) {
  mirrorCaptioned(control, *this);
}

Size ButtonWindow::natural() const {
  const Size words = look().textSize(caption(), font());
  return {std::max(words.width + 2 * look().length(Gap::large), look().scaled(75)),
          words.height + look().scaled(10)};
}

void ButtonWindow::onCommand(WORD code) {
  if (code == BN_CLICKED) {
    control_.click();
  }
}

}  // namespace zelvane::win32
