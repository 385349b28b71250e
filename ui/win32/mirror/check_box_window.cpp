#include "ui/win32/mirror/check_box_window.h"

#include <algorithm>

#include <commctrl.h>

#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

WPARAM stateOf(int value) {
  switch (value) {
    case controls::CheckBox::kChecked:
      return BST_CHECKED;
    case controls::CheckBox::kGreyed:
      return BST_INDETERMINATE;
    default:
      return BST_UNCHECKED;
  }
}

}  // namespace

Size markedSize(const Window& window) {
  const Look& look = window.look();
  const Size words = look.textSize(window.caption(), window.font());
  return {look.length(Gap::indent) + words.width + look.scaled(4),
          std::max(words.height, look.scaled(13)) + look.scaled(4)};
}

// What the box shows after a click is the control's to say, so it does not turn by itself.
CheckBoxWindow::CheckBoxWindow(controls::CheckBox& control, Pane& parent)
    : Window({WC_BUTTONW, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_3STATE}, parent),
      control_(control) {
  mirrorCaptioned(control, *this);
  followOnceMade(control, *this,
                 [this] { SendMessageW(handle(), BM_SETCHECK, stateOf(control_.value()), 0); });
}

Size CheckBoxWindow::natural() const { return markedSize(*this); }

void CheckBoxWindow::onCommand(WORD code) {
  if (code == BN_CLICKED) {
    control_.click();
  }
}

}  // namespace zelvane::win32
