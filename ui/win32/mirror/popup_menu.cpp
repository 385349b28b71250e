#include "ui/win32/mirror/popup_menu.h"

#include "platform/windows/wide_text.h"

namespace zelvane::win32 {

PopupMenu::PopupMenu(controls::Menu& control) : control_(control), handle_(CreatePopupMenu()) {
  UINT_PTR number = 0;
  for (const controls::MenuItem* item : control.items()) {
    ++number;
    if (item->visible()) {
      add(*item, number);
    }
  }
}

PopupMenu::~PopupMenu() { DestroyMenu(handle_); }

void PopupMenu::add(const controls::MenuItem& item, UINT_PTR number) const {
  const UINT kind = item.separator() ? MF_SEPARATOR : MF_STRING;
  const UINT mark = item.checked() ? MF_CHECKED : MF_UNCHECKED;
  const UINT use = item.enabled() ? MF_ENABLED : MF_GRAYED;
  AppendMenuW(handle_, kind | mark | use, number, platform::wideText(item.caption()).c_str());
}

// The message at the end lets the owner give the keys away again at once; otherwise the next menu
// would close as soon as it opens.
void PopupMenu::open(HWND owner) const {
  POINT pointer{};
  GetCursorPos(&pointer);
  SetForegroundWindow(owner);
  const int number = TrackPopupMenu(handle_, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                    pointer.x, pointer.y, 0, owner, nullptr);
  PostMessageW(owner, WM_NULL, 0, 0);
  if (number > 0) {
    control_.items()[static_cast<std::size_t>(number) - 1]->click();
  }
}

}  // namespace zelvane::win32
