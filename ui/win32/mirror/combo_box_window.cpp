#include "ui/win32/mirror/combo_box_window.h"

#include <algorithm>

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

ComboBoxWindow::ComboBoxWindow(controls::ComboBox& control, Pane& parent)
    : Window({WC_COMBOBOXW, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST},
             parent.handle(), parent.look()),
      control_(control) {
  for (const std::string& item : control.items()) {
    SendMessageW(handle(), CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(platform::wideText(item).c_str()));
  }
  SendMessageW(handle(), CB_SETMINVISIBLE, control.items().size(), 0);
  mirrorControl(control, *this);
  follow(control, *this, [this] {
    SendMessageW(handle(), CB_SETCURSEL, static_cast<WPARAM>(control_.listIndex()), 0);
  });
}

Size ComboBoxWindow::natural() const {
  int widest = 0;
  for (const std::string& item : control_.items()) {
    widest = std::max(widest, look().textSize(platform::wideText(item), font()).width);
  }
  RECT closed{};
  GetWindowRect(handle(), &closed);
  return {widest + GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()) + look().scaled(12),
          closed.bottom - closed.top};
}

// The height of the closed box is the system's choice; what is given counts with the list open.
void ComboBoxWindow::place(const Area& area) {
  Window::place(
      {area.left, area.top, area.width,
       area.height + look().lineHeight() * static_cast<int>(control_.items().size() + 1)});
}

// It comes with each choice of the user, also of the item that is chosen already.
void ComboBoxWindow::onCommand(WORD code) {
  if (code == CBN_SELCHANGE) {
    control_.setListIndex(static_cast<int>(SendMessageW(handle(), CB_GETCURSEL, 0, 0)));
  }
}

}  // namespace zelvane::win32
