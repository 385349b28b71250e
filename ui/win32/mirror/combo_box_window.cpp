#include "ui/win32/mirror/combo_box_window.h"

#include <algorithm>

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

ComboBoxWindow::ComboBoxWindow(controls::ComboBox& control, Pane& parent)
    : Window({WC_COMBOBOXW, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST},
             parent),
      control_(control) {
  whenMade([this] {
    for (const std::string& item : control_.items()) {
      SendMessageW(handle(), CB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(platform::wideText(item).c_str()));
    }
    SendMessageW(handle(), CB_SETMINVISIBLE, control_.items().size(), 0);
    fitHeight();
  });
  mirrorControl(control, *this);
  followOnceMade(control, *this, [this] {
    SendMessageW(handle(), CB_SETCURSEL, static_cast<WPARAM>(control_.listIndex()), 0);
  });
}

Size ComboBoxWindow::natural() const {
  int widest = 0;
  for (const std::string& item : control_.items()) {
    widest = std::max(widest, look().textSize(platform::wideText(item), font()).width);
  }
  return {widest + GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()) + look().scaled(12),
          isMade() ? closedHeight() : look().fieldHeight()};
}

int ComboBoxWindow::closedHeight() const {
  RECT closed{};
  GetWindowRect(handle(), &closed);
  return closed.bottom - closed.top;
}

// As high as other fields. The system is told of the line inside, and adds a border of its choice,
// which is seen by trying.
void ComboBoxWindow::fitHeight() const {
  const int wanted = look().fieldHeight();
  const auto setLine = [this](int height) {
    SendMessageW(handle(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
  };
  setLine(wanted);
  setLine(wanted - (closedHeight() - wanted));
}

void ComboBoxWindow::onLookChanged() {
  Window::onLookChanged();
  if (isMade()) {
    fitHeight();
  }
}

// The height of the closed box is not what is given: that counts with the list open.
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
