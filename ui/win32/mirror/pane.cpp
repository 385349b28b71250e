#include "ui/win32/mirror/pane.h"

#include <algorithm>

#include <commctrl.h>

namespace zelvane::win32 {

Pane::Pane(Pane& parent, DWORD style, Making making)
    : Window({kPaneClass, WS_CHILD | WS_CLIPCHILDREN | style, WS_EX_CONTROLPARENT}, parent, making),
      body_(Box::Lie::column, Gap::large, look()) {}

Pane::Pane(const Make& make, HWND owner, Look& look)
    : Window(make, owner, look), body_(Box::Lie::column, Gap::large, look) {}

void Pane::makeAfter(const Window& first, const Window& after) {
  const auto at = [this](const Window& window) {
    return std::ranges::find(children_, &window, &std::unique_ptr<Window>::get);
  };
  const auto late = at(first);
  const auto early = at(after);
  if (early < late) {
    std::rotate(early, early + 1, late + 1);
  }
}

void Pane::makeBelow() {
  for (const auto& child : children_) {
    child->makeWindow();
  }
}

void Pane::visit(const std::function<void(Window&)>& visitor) {
  Window::visit(visitor);
  for (const auto& child : children_) {
    child->visit(visitor);
  }
}

Size Pane::inside() const {
  if (!isMade()) {
    return {area().width, area().height};
  }
  RECT client{};
  GetClientRect(handle(), &client);
  return {client.right, client.bottom};
}

// A pane of the same size as before may yet hold things that want another place.
void Pane::place(const Area& area) {
  Window::place(area);
  layOut();
}

void Pane::layOut() {
  const Size room = inside();
  body_.place({0, 0, room.width, room.height});
  drawAnew();
}

void Pane::drawAnew() const {
  if (isMade()) {
    InvalidateRect(handle(), nullptr, TRUE);
  }
}

void Pane::onLookChanged() {
  Window::onLookChanged();
  for (const auto& child : children_) {
    child->onLookChanged();
  }
}

HBRUSH Pane::answerColours(HDC surface, HWND child) const {
  if (Window* window = of(child)) {
    if (const HBRUSH own = window->onColours(surface)) {
      return own;
    }
  }
  SetTextColor(surface, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(surface, GetSysColor(background_));
  return GetSysColorBrush(background_);
}

void Pane::fill(HDC surface) const {
  RECT all{};
  GetClientRect(handle(), &all);
  FillRect(surface, &all, GetSysColorBrush(background_));
}

void Pane::paint() {
  PAINTSTRUCT painting;
  const HDC surface = BeginPaint(handle(), &painting);
  body_.draw(surface);
  EndPaint(handle(), &painting);
}

LRESULT Pane::onMessage(UINT message, WPARAM word, LPARAM value) {
  switch (message) {
    case WM_COMMAND:
      if (Window* child = of(reinterpret_cast<HWND>(value))) {
        child->onCommand(HIWORD(word));
      }
      return 0;
    case WM_NOTIFY: {
      const auto& notice = *reinterpret_cast<const NMHDR*>(value);
      if (Window* child = of(notice.hwndFrom)) {
        if (const auto answer = child->onNotify(notice)) {
          return *answer;
        }
      }
      break;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return reinterpret_cast<LRESULT>(
          answerColours(reinterpret_cast<HDC>(word), reinterpret_cast<HWND>(value)));
    case WM_CTLCOLOREDIT:
      if (Window* child = of(reinterpret_cast<HWND>(value))) {
        if (const HBRUSH brush = child->onColours(reinterpret_cast<HDC>(word))) {
          return reinterpret_cast<LRESULT>(brush);
        }
      }
      break;
    case WM_DRAWITEM: {
      const auto& drawing = *reinterpret_cast<const DRAWITEMSTRUCT*>(value);
      if (Window* child = of(drawing.hwndItem)) {
        child->onDraw(drawing);
      }
      return TRUE;
    }
    case WM_ERASEBKGND:
      fill(reinterpret_cast<HDC>(word));
      return 1;
    case WM_PAINT:
      paint();
      return 0;
    default:
      break;
  }
  return Window::onMessage(message, word, value);
}

ScrollPane::ScrollPane(Pane& parent) : Pane(parent, 0, Making::later) {
  whenMade([this] { layOut(); });
}

void ScrollPane::layOut() {
  const Size room = inside();
  const int barWidth = GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi());
  const bool hasBar = (style() & WS_VSCROLL) != 0;
  const int whole = room.width + (hasBar ? barWidth : 0);
  const bool needsBar = body().heightFor(whole) > room.height;
  const int width = needsBar ? whole - barWidth : whole;
  const int height = std::max(body().heightFor(width), room.height);
  top_ = std::clamp(top_, 0, height - room.height);
  if (isMade()) {
    showBar(height, room.height);
  }
  body().place({0, -top_, width, height});
  drawAnew();
}

void ScrollPane::showBar(int height, int seen) {
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  bar.nMax = std::max(height - 1, 0);
  bar.nPage = static_cast<UINT>(std::max(seen, 0));
  bar.nPos = top_;
  SetScrollInfo(handle(), SB_VERT, &bar, TRUE);
}

void ScrollPane::scrollTo(int top) {
  top_ = top;
  layOut();
}

void ScrollPane::onFocusBelow(HWND below) {
  RECT area{};
  GetWindowRect(below, &area);
  MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&area), 2);
  const int gap = look().length(Gap::small);
  const int height = inside().height;
  if (area.top < 0) {
    scrollTo(top_ + area.top - gap);
  } else if (area.bottom > height) {
    scrollTo(top_ + std::min(area.bottom - height + gap, area.top - 0L));
  }
}

int ScrollPane::wanted(WORD action) const {
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_ALL;
  GetScrollInfo(handle(), SB_VERT, &bar);
  const int line = look().lineHeight() * 2;
  const int page = std::max(static_cast<int>(bar.nPage) - line, line);
  switch (action) {
    case SB_LINEUP:
      return top_ - line;
    case SB_LINEDOWN:
      return top_ + line;
    case SB_PAGEUP:
      return top_ - page;
    case SB_PAGEDOWN:
      return top_ + page;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return bar.nTrackPos;
    case SB_TOP:
      return 0;
    case SB_BOTTOM:
      return bar.nMax;
    default:
      return top_;
  }
}

LRESULT ScrollPane::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_VSCROLL) {
    scrollTo(wanted(LOWORD(word)));
    return 0;
  }
  if (message == WM_MOUSEWHEEL) {
    scrollTo(top_ - GET_WHEEL_DELTA_WPARAM(word) * look().lineHeight() * 3 / WHEEL_DELTA);
    return 0;
  }
  return Pane::onMessage(message, word, value);
}

}  // namespace zelvane::win32
