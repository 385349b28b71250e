#include "ui/win32/mirror/tab_strip_window.h"

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/spoken_name.h"

namespace zelvane::win32 {

TabStripWindow::TabStripWindow(controls::TabStrip& control, Pane& parent)
    : Window({WC_TABCONTROLW, WS_CHILD | WS_VISIBLE | WS_TABSTOP | TCS_FOCUSONBUTTONDOWN},
             parent.handle(), parent.look()),
      control_(control) {
  onLookChanged();
  for (std::size_t at = 0; at < control.captions().size(); ++at) {
    std::wstring caption = platform::wideText(control.captions()[at]);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    SendMessageW(handle(), TCM_INSERTITEMW, at, reinterpret_cast<LPARAM>(&item));
  }
  setSpokenName(handle(), L"Pages");
  mirrorControl(control, *this);
  follow(control, *this, [this] { showPage(); });
}

void TabStripWindow::addPage(Window& page) {
  pages_.push_back(&page);
  showPage();
}

// The keys may be with a page that goes to the back, where they would be lost.
void TabStripWindow::showPage() {
  const auto front = static_cast<std::size_t>(control_.tab());
  TabCtrl_SetCurSel(handle(), static_cast<int>(front));
  for (std::size_t at = 0; at < pages_.size(); ++at) {
    if (at != front && IsChild(pages_[at]->handle(), GetFocus())) {
      SetFocus(handle());
    }
    ShowWindow(pages_[at]->handle(), at == front ? SW_SHOWNA : SW_HIDE);
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
