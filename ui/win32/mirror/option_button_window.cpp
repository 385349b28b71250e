#include "ui/win32/mirror/option_button_window.h"

#include <algorithm>

#include <commctrl.h>

#include "ui/win32/mirror/check_box_window.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

OptionButtonWindow::OptionButtonWindow(controls::OptionButton& control, Pane& parent)
    : Window({WC_BUTTONW, WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON}, parent), control_(control) {
  mirrorCaptioned(control, *this);
  followOnceMade(control, *this, [this] {
    SendMessageW(handle(), BM_SETCHECK, control_.value() ? BST_CHECKED : BST_UNCHECKED, 0);
  });
}

Size OptionButtonWindow::natural() const { return markedSize(*this); }

void OptionButtonWindow::onCommand(WORD code) {
  if (code == BN_CLICKED) {
    control_.click();
  }
}

void groupTogether(const std::vector<controls::OptionButton*>& controls,
                   const std::vector<OptionButtonWindow*>& windows) {
  windows.front()->setStyle(WS_GROUP, true);
  const auto moveStop = [controls, windows] {
    const auto selected = std::ranges::find_if(controls, &controls::OptionButton::value);
    const auto stop = selected == controls.end() ? 0 : selected - controls.begin();
    for (std::size_t at = 0; at < windows.size(); ++at) {
      windows[at]->setStyle(WS_TABSTOP, static_cast<std::ptrdiff_t>(at) == stop);
    }
  };
  for (controls::OptionButton* control : controls) {
    follow(*control, *windows.front(), moveStop);
  }
}

}  // namespace zelvane::win32
