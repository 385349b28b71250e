#include "ui/win32/mirror/rich_log_window.h"

#include <array>
#include <cstdlib>

#include <commctrl.h>
#include <richedit.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

using Shades = std::array<COLORREF, 3>;  // black, blue, green

constexpr Shades kOnLight{RGB(0, 0, 0), RGB(0, 0, 255), RGB(0, 128, 0)};
constexpr Shades kOnDark{RGB(240, 240, 240), RGB(130, 177, 255), RGB(129, 212, 133)};

constexpr int kHalfBright = 128;

// The class lives in a library of the system's that has to be there before the first window.
const wchar_t* richEditClass() {
  LoadLibraryExW(L"msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return MSFTEDIT_CLASS;
}

}  // namespace

RichLogWindow::RichLogWindow(controls::RichLog& control, Pane& parent)
    : Window({richEditClass(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | WS_BORDER |
                                   ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_NOHIDESEL},
             parent),
      control_(control) {
  whenMade([this] {
    SendMessageW(handle(), EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
    SendMessageW(handle(), EM_SETUNDOLIMIT, 0, 0);
    startAnew();
  });
  mirrorControl(control, *this);
  whileAlive(control.cleared, *this, [this] {
    if (isMade()) {
      startAnew();
    }
  });
  followOnceMade(control, *this, [this] { showNewRuns(); });
}

COLORREF RichLogWindow::shade(controls::RichLog::Colour colour, COLORREF background) {
  return (brightness(background) < kHalfBright ? kOnDark
                                               : kOnLight)[static_cast<std::size_t>(colour)];
}

Size RichLogWindow::natural() const { return {look().letters(30), look().lineHeight() * 6}; }

void RichLogWindow::onLookChanged() {
  Window::onLookChanged();
  if (isMade()) {
    startAnew();
    showNewRuns();
  }
}

LRESULT RichLogWindow::onMessage(UINT message, WPARAM word, LPARAM value) {
  // The tab key leaves a text that is only read, and coming to it selects nothing.
  if (message == WM_GETDLGCODE) {
    return DLGC_WANTARROWS;
  }
  const LRESULT answer = Window::onMessage(message, word, value);
  if (message == WM_SYSCOLORCHANGE) {
    startAnew();
    showNewRuns();
  }
  return answer;
}

void RichLogWindow::startAnew() {
  SetWindowTextW(handle(), L"");
  shown_ = 0;
  PARAFORMAT2 paragraph{};
  paragraph.cbSize = sizeof paragraph;
  paragraph.dwMask = PFM_STARTINDENT | PFM_RIGHTINDENT;
  paragraph.dxStartIndent = twips(look().scaled(4));
  paragraph.dxRightIndent = paragraph.dxStartIndent;
  SendMessageW(handle(), EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&paragraph));
}

// Twentieths of a point, in which such a text is measured whatever the resolution.
LONG RichLogWindow::twips(int pixels) const {
  return MulDiv(pixels, 1440, static_cast<int>(look().dpi()));
}

bool RichLogWindow::isAtEnd() const {
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_ALL;
  return GetScrollInfo(handle(), SB_VERT, &bar) == FALSE || bar.nPage == 0 ||
         bar.nPos + static_cast<int>(bar.nPage) + look().lineHeight() > bar.nMax;
}

void RichLogWindow::showNewRuns() {
  if (shown_ == control_.runs().size()) {
    return;
  }
  const bool stay = !isAtEnd();
  POINT top{};
  CHARRANGE selected{};
  SendMessageW(handle(), EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&top));
  SendMessageW(handle(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&selected));
  for (; shown_ < control_.runs().size(); ++shown_) {
    append(control_.runs()[shown_]);
  }
  if (stay) {
    SendMessageW(handle(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&selected));
    SendMessageW(handle(), EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&top));
  } else {
    SendMessageW(handle(), WM_VSCROLL, SB_BOTTOM, 0);
  }
}

void RichLogWindow::append(const controls::RichLog::Run& run) {
  constexpr std::wstring_view kLineBreak = L"\r\n";
  const CHARRANGE end{-1, -1};
  CHARFORMAT2W format{};
  format.cbSize = sizeof format;
  format.dwMask = CFM_COLOR | CFM_SIZE;
  format.crTextColor = shade(run.colour, GetSysColor(COLOR_WINDOW));
  std::wstring text = platform::wideText(run.text);
  const auto add = [&](const std::wstring& piece, LONG height) {
    format.yHeight = height;
    SendMessageW(handle(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&end));
    SendMessageW(handle(), EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    SendMessageW(handle(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(piece.c_str()));
  };
  if (shown_ == 0 && text.starts_with(kLineBreak)) {
    constexpr LONG kOnePoint = 20;
    add(std::wstring(kLineBreak), kOnePoint);
    text.erase(0, kLineBreak.size());
  }
  LOGFONTW font{};
  GetObjectW(look().font(Font::normal), sizeof font, &font);
  add(text, twips(std::abs(static_cast<int>(font.lfHeight))));
}

}  // namespace zelvane::win32
