#include "ui/win32/mirror/list_view_window.h"

#include <algorithm>

#include <commctrl.h>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"

namespace zelvane::win32 {

ListViewWindow::ListViewWindow(controls::ListView& control, Pane& parent)
    : Window({WC_LISTVIEWW, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_REPORT |
                                LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER},
             parent),
      control_(control) {
  whenMade([this] {
    addColumns();
    shareWidth();
  });
  mirrorControl(control, *this);
  followOnceMade(control, *this, [this] { showRows(); });
}

Size ListViewWindow::natural() const { return {look().letters(40), look().lineHeight() * 6}; }

void ListViewWindow::place(const Area& area) {
  Window::place(area);
  if (isMade()) {
    shareWidth();
  }
}

void ListViewWindow::addColumns() {
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER;
  ListView_SetExtendedListViewStyleEx(handle(), kStyle, kStyle);
  for (std::size_t at = 0; at < control_.columns().size(); ++at) {
    std::wstring heading = platform::wideText(control_.columns()[at]);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = heading.data();
    SendMessageW(handle(), LVM_INSERTCOLUMNW, at, reinterpret_cast<LPARAM>(&column));
  }
}

// The last column is for short texts, the others share the rest.
void ListViewWindow::shareWidth() {
  const auto columns = static_cast<int>(control_.columns().size());
  const int room =
      area().width - GetSystemMetricsForDpi(SM_CXVSCROLL, look().dpi()) - look().scaled(2);
  const int last = std::min(look().letters(18), room / columns);
  for (int column = 0; column < columns; ++column) {
    const bool isLast = column == columns - 1;
    const int share = columns == 1 ? room : isLast ? last : (room - last) / (columns - 1);
    ListView_SetColumnWidth(handle(), column, share);
  }
}

// A control's rows are only added at the end or cleared all together.
void ListViewWindow::showRows() {
  const auto rows = static_cast<int>(control_.rows().size());
  int shown = ListView_GetItemCount(handle());
  if (rows < shown) {
    ListView_DeleteAllItems(handle());
    shown = 0;
  }
  for (; shown < rows; ++shown) {
    const auto& cells = control_.rows()[static_cast<std::size_t>(shown)].cells;
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
      std::wstring text = platform::wideText(cells[cell]);
      LVITEMW item{};
      item.mask = LVIF_TEXT;
      item.iItem = shown;
      item.iSubItem = static_cast<int>(cell);
      item.pszText = text.data();
      SendMessageW(handle(), cell == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
                   reinterpret_cast<LPARAM>(&item));
    }
  }
}

}  // namespace zelvane::win32
