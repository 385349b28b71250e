#include "ui/win32/mirror/form_window.h"

#include <algorithm>
#include <utility>

#include <commctrl.h>

#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

namespace {

constexpr int kWidestTip = 400;  // at 96 dots per inch

// To the window itself: lay out what is in it.
constexpr UINT kLayoutMessage = WM_APP + 1;

// The system lets a timer wait until nothing is left to be drawn.
constexpr UINT_PTR kFinishTimer = 1;

}  // namespace

FormWindow::FormWindow(controls::Form& control, Look& look)
    : FormWindow(control, {kPaneClass, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT},
                 nullptr, look) {}

FormWindow::FormWindow(controls::Form& control, HWND owner, Look& look)
    : FormWindow(control,
                 {kPaneClass, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                  WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME},
                 owner, look) {}

FormWindow::FormWindow(controls::Form& control, const Make& make, HWND owner, Look& look)
    : Pane(make, owner, look), frame_(make), control_(control), ownLook_(look) {
  setControl(control);
  setBackground(COLOR_BTNFACE);
  adopt(GetDpiForWindow(handle()));
  follow(control, *this, [this] { showControl(); });
  SetTimer(handle(), kFinishTimer, USER_TIMER_MINIMUM, nullptr);
}

// While the members are still there: the system tells of the window's end.
FormWindow::~FormWindow() { destroy(); }

void FormWindow::adopt(UINT dpi) {
  ownLook_.setDpi(dpi);
  fitTips();
  onLookChanged();
}

void FormWindow::makeTips() {
  tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                          WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, handle(), nullptr,
                          GetModuleHandleW(nullptr), nullptr);
  fitTips();
}

void FormWindow::fitTips() const {
  if (tips_ != nullptr) {
    SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, look().scaled(kWidestTip));
  }
}

SIZE FormWindow::withBorder(Size inside) const {
  RECT frame{0, 0, inside.width, inside.height};
  AdjustWindowRectExForDpi(&frame, frame_.style, FALSE, frame_.extendedStyle, look().dpi());
  return {frame.right - frame.left, frame.bottom - frame.top};
}

void FormWindow::fit() {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(handle(), MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& screen = monitor.rcWork;
  const int width = body().natural().width;
  const SIZE wanted = withBorder({width, body().heightFor(width)});
  const LONG widest = screen.right - screen.left;
  const LONG highest = screen.bottom - screen.top;
  const SIZE size{std::min(wanted.cx, widest), std::min(wanted.cy, highest)};
  SetWindowPos(handle(), nullptr, static_cast<int>(screen.left + (widest - size.cx) / 2),
               static_cast<int>(screen.top + (highest - size.cy) / 2), static_cast<int>(size.cx),
               static_cast<int>(size.cy), SWP_NOZORDER | SWP_NOACTIVATE);
  layOut();
}

void FormWindow::setTip(HWND tool, const std::wstring& text) {
  TTTOOLINFOW tip{};
  tip.cbSize = sizeof tip;
  tip.uFlags = TTF_IDISHWND;
  tip.hwnd = handle();
  tip.uId = reinterpret_cast<UINT_PTR>(tool);
  std::wstring shown = text;
  tip.lpszText = shown.data();
  SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tip));
  if (!text.empty()) {
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tip));
  }
}

void FormWindow::followPointer(MSG& message) {
  if (tips_ != nullptr) {
    SendMessageW(tips_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
  }
}

void FormWindow::setBlocked(bool blocked) {
  blocked_ = blocked;
  EnableWindow(handle(), control_.enabled() && !blocked ? TRUE : FALSE);
}

// A window that is not seen keeps its state for when it is.
void FormWindow::showControl() {
  setCaption(plainCaption(control_.caption()));
  EnableWindow(handle(), control_.enabled() && !blocked_ ? TRUE : FALSE);
  const bool minimised = control_.state() == controls::Form::State::minimised;
  if (!control_.visible()) {
    if (isShown()) {
      ShowWindow(handle(), SW_HIDE);
    }
  } else if (!isShown()) {
    ShowWindow(handle(), minimised ? SW_SHOWMINIMIZED : SW_SHOWNORMAL);
  } else if (minimised != (IsIconic(handle()) != FALSE)) {
    ShowWindow(handle(), minimised ? SW_MINIMIZE : SW_RESTORE);
  }
}

void FormWindow::onSize(WPARAM how) {
  if (isShown()) {
    control_.setState(how == SIZE_MINIMIZED ? controls::Form::State::minimised
                                            : controls::Form::State::normal);
  }
  layOut();
}

// The keys go back to who had them.
void FormWindow::onActivate(WPARAM how) {
  if (LOWORD(how) == WA_INACTIVE) {
    focused_ = GetFocus();
    return;
  }
  if (HIWORD(how) == 0) {
    const bool usable =
        IsChild(handle(), focused_) && IsWindowVisible(focused_) && IsWindowEnabled(focused_);
    SetFocus(usable ? focused_ : GetNextDlgTabItem(handle(), nullptr, FALSE));
  }
  control_.activated.raise();
}

// Many things may ask before there is time; one answer is enough.
void FormWindow::askForLayout() {
  if (!layoutAsked_) {
    layoutAsked_ = PostMessageW(handle(), kLayoutMessage, 0, 0) != FALSE;
  }
}

// A minimised window has no room. It gets a size when it is restored.
void FormWindow::layOut() {
  if (IsIconic(handle()) == FALSE) {
    Pane::layOut();
  }
}

void FormWindow::onLayoutAsked() {
  layoutAsked_ = false;
  layOut();
}

void FormWindow::finish() {
  if (settled_) {
    return;
  }
  KillTimer(handle(), kFinishTimer);
  makeWindow();
  makeTips();
  settled_ = true;
  visit([](Window& window) { window.settle(); });
  visit([this](Window& window) {
    if (&window != this) {
      window.showControlName();
    }
  });
  showControlName();
}

// A page each time, so that the window answers in between.
void FormWindow::finishSome() {
  const auto page =
      std::ranges::find_if_not(children(), [](const auto& child) { return child->isMade(); });
  if (page == children().end()) {
    finish();
  } else {
    (*page)->makeWindow();
  }
}

void FormWindow::onDpi(UINT dpi, const RECT& wanted) {
  adopt(dpi);
  SetWindowPos(handle(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
               wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
  layOut();
}

LRESULT FormWindow::onMessage(UINT message, WPARAM word, LPARAM value) {
  switch (message) {
    case WM_CLOSE:
      control_.unload(controls::UnloadMode::controlMenu);
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (word != FALSE) {
        control_.unload(controls::UnloadMode::windows);
      }
      return 0;
    case WM_SIZE:
      onSize(word);
      return 0;
    case WM_SHOWWINDOW:
      if (value == 0) {  // nobody else's window opened or closed over it
        control_.setVisible(word != FALSE);
      }
      break;
    case WM_ACTIVATE:
      onActivate(word);
      return 0;
    case WM_DPICHANGED:
      onDpi(LOWORD(word), *reinterpret_cast<const RECT*>(value));
      return 0;
    case WM_SETTINGCHANGE:
      if (word == SPI_SETNONCLIENTMETRICS) {
        adopt(look().dpi());
        layOut();
      }
      break;
    case kLayoutMessage:
      onLayoutAsked();
      return 0;
    case WM_TIMER:
      if (word == kFinishTimer) {
        finishSome();
        return 0;
      }
      break;
    default:
      if (const auto found = answers_.find(message); found != answers_.end()) {
        found->second(word, value);
        return 0;
      }
      break;
  }
  return Pane::onMessage(message, word, value);
}

}  // namespace zelvane::win32
