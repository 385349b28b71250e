#include "ui/win32/mirror/label_window.h"

#include <cstdlib>

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

// The mark of an access key means something only where there is a control to jump to.
DWORD accessKeyStyle(const controls::Label& control) {
  return control.buddy() == nullptr ? DWORD{SS_NOPREFIX} : 0;
}

std::wstring shownCaption(const controls::Label& control) {
  return control.buddy() == nullptr ? plainCaption(control.caption())
                                    : platform::wideText(control.caption());
}

// Blanks of every kind, many or one, become one; those at the ends none.
std::wstring inOneLine(const std::wstring& text) {
  std::wstring line;
  for (const wchar_t letter : text) {
    const bool blank = letter == L' ' || letter == L'\r' || letter == L'\n' || letter == L'\t';
    if (!blank) {
      line += letter;
    } else if (!line.empty() && line.back() != L' ') {
      line += L' ';
    }
  }
  line.erase(line.find_last_not_of(L' ') + 1);
  return line;
}

// The system's colour for links, unless a theme's is not to be seen on what is behind it.
COLORREF linkColour() {
  constexpr int kSeen = 80;
  const COLORREF systems = GetSysColor(COLOR_HOTLIGHT);
  const int background = brightness(GetSysColor(COLOR_WINDOW));
  if (std::abs(brightness(systems) - background) >= kSeen) {
    return systems;
  }
  return background < 128 ? RGB(102, 178, 255) : RGB(0, 102, 204);
}

std::function<bool()> unlessEmpty(const controls::Label& control) {
  return [&control] { return !control.caption().empty(); };
}

}  // namespace

LabelWindow::LabelWindow(controls::Label& control, Pane& parent)
    : Window({WC_STATICW, WS_CHILD | WS_VISIBLE | WS_GROUP | SS_LEFT | accessKeyStyle(control)},
             parent) {
  mirrorControl(control, *this, unlessEmpty(control));
  follow(control, *this, [this, &control] {
    const std::wstring shown = shownCaption(control);
    if (shown != caption()) {
      setCaption(shown);
      askForLayout();
    }
  });
}

// A little more than what was measured: letters may hang over the end of their line.
Size LabelWindow::natural() const {
  const bool plain = (style() & SS_NOPREFIX) != 0;
  const Size words = look().textSize(caption(), font(), plain ? DT_NOPREFIX : 0);
  return {words.width + look().scaled(2), words.height};
}

LineWindow::LineWindow(controls::Label& control, Pane& parent)
    : Window({WC_STATICW, WS_CHILD | WS_VISIBLE | SS_LEFTNOWORDWRAP | SS_NOPREFIX |
                              SS_PATHELLIPSIS | SS_CENTERIMAGE},
             parent) {
  mirrorControl(control, *this);
  follow(control, *this,
         [this, &control] { setCaption(inOneLine(platform::wideText(control.caption()))); });
}

Size LineWindow::natural() const { return {look().letters(8), look().lineHeight()}; }

LinkWindow::LinkWindow(controls::Label& control, Pane& parent)
    : Window({WC_BUTTONW, WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | BS_OWNERDRAW}, parent),
      control_(control) {
  setFont(Font::link);
  mirrorControl(control, *this, unlessEmpty(control));
  follow(control, *this, [this] {
    const std::wstring shown = plainCaption(control_.caption());
    if (shown != caption()) {
      setCaption(shown);
      askForLayout();
    }
  });
}

Size LinkWindow::natural() const {
  const Size words = look().textSize(caption(), font(), DT_NOPREFIX);
  return {words.width + look().scaled(2), words.height + look().scaled(2)};
}

void LinkWindow::onCommand(WORD code) {
  if (code == BN_CLICKED) {
    control_.click();
  }
}

void LinkWindow::onDraw(const DRAWITEMSTRUCT& drawing) {
  const bool disabled = (drawing.itemState & ODS_DISABLED) != 0;
  RECT room = drawing.rcItem;
  FillRect(drawing.hDC, &room, GetSysColorBrush(COLOR_WINDOW));
  SetBkMode(drawing.hDC, TRANSPARENT);
  SetTextColor(drawing.hDC, disabled ? GetSysColor(COLOR_GRAYTEXT) : linkColour());
  SelectObject(drawing.hDC, look().font(font()));
  DrawTextW(drawing.hDC, caption().c_str(), -1, &room,
            DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER | DT_NOCLIP);
  if ((drawing.itemState & ODS_FOCUS) != 0 && (drawing.itemState & ODS_NOFOCUSRECT) == 0) {
    DrawFocusRect(drawing.hDC, &room);
  }
}

LRESULT LinkWindow::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_SETCURSOR) {
    SetCursor(LoadCursorW(nullptr, IDC_HAND));
    return TRUE;
  }
  return Window::onMessage(message, word, value);
}

}  // namespace zelvane::win32
