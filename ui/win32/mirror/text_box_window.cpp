#include "ui/win32/mirror/text_box_window.h"

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

TextBoxWindow::TextBoxWindow(controls::TextBox& control, Pane& parent)
    : Window({WC_EDITW,
              WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL |
                  (control.kind() == controls::TextBox::Kind::password ? DWORD{ES_PASSWORD} : 0),
              WS_EX_CLIENTEDGE},
             parent),
      control_(control) {
  whenMade([this] { SendMessageW(handle(), EM_SETLIMITTEXT, 0, 0); });
  mirrorControl(control, *this);
  followOnceMade(control, *this, [this] {
    showText();
    InvalidateRect(handle(), nullptr, TRUE);  // the background may be another
  });
}

// A text that the window cannot hold to the letter must not come back as an edit.
void TextBoxWindow::showText() {
  if (platform::plainText(text()) != control_.text()) {
    showing_ = true;
    SetWindowTextW(handle(), platform::wideText(control_.text()).c_str());
    showing_ = false;
  }
}

Size TextBoxWindow::natural() const { return {look().letters(14), look().fieldHeight()}; }

void TextBoxWindow::onCommand(WORD code) {
  if (code == EN_CHANGE && !showing_) {
    control_.setText(platform::plainText(text()));
  }
}

HBRUSH TextBoxWindow::onColours(HDC surface) {
  const bool usual = control_.background() == controls::TextBox::Background::window;
  const int background = usual && control_.reachable() ? COLOR_WINDOW : COLOR_BTNFACE;
  SetTextColor(surface, GetSysColor(control_.reachable() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
  SetBkColor(surface, GetSysColor(background));
  return GetSysColorBrush(background);
}

}  // namespace zelvane::win32
