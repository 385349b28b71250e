#include "ui/win32/mirror/tab_strip_window.h"

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/spoken_name.h"

namespace zelvane::win32 {

namespace {

// A row that is too narrow for its tabs makes itself arrows to scroll by.
constexpr int kAmple = 10'000;

}  // namespace

TabStripWindow::TabStripWindow(controls::TabStrip& control, Pane& parent)
    : Window({.className = WC_TABCONTROLW,
              .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | TCS_FOCUSONBUTTONDOWN,
              .width = kAmple},
             parent),
      control_(control) {
  onLookChanged();
  for (std::size_t at = 0; at < control.captions().size(); ++at) {
    std::wstring caption = platform::wideText(control.captions()[at]);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    SendMessageW(handle(), TCM_INSERTITEMW, at, reinterpret_cast<LPARAM>(&item));
  }
  setSpokenName(*this, L"Pages");
  mirrorControl(control, *this);
  follow(control, *this, [this] { showPage(); });
}

// The keys may be with a page that goes to the back, where they would be lost.
void TabStripWindow::showPage() {
  const auto front = static_cast<std::size_t>(control_.tab());
  TabCtrl_SetCurSel(handle(), static_cast<int>(front));
  for (std::size_t at = 0; at < pages_.size(); ++at) {
    Window& page = *pages_[at];
    if (at == front) {
      page.makeWindow();
    } else if (page.isShown() && IsChild(page.handle(), GetFocus())) {
      SetFocus(handle());
    }
    page.appear(at == front);
  }
}

void TabStripWindow::turn(int direction) {
  const auto tabs = static_cast<int>(control_.captions().size());
  control_.setTab((control_.tab() + direction + tabs) % tabs);
}

void TabStripWindow::onLookChanged() {
  TabCtrl_SetPadding(handle(), look().scaled(9), look().scaled(4));
  Window::onLookChanged();
}

Size TabStripWindow::natural() const {
  RECT last{};
  TabCtrl_GetItemRect(handle(), static_cast<int>(control_.captions().size()) - 1, &last);
  return {last.right + look().scaled(4), last.bottom + look().scaled(1)};
}

std::optional<LRESULT> TabStripWindow::onNotify(const NMHDR& notice) {
  if (notice.code != static_cast<UINT>(TCN_SELCHANGE)) {
    return std::nullopt;
  }
  control_.setTab(TabCtrl_GetCurSel(handle()));
  return 0;
}

}  // namespace zelvane::win32
