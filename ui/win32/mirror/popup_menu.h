// A pop-up menu.
#pragma once

#include <windows.h>

#include "core/controls/menu.h"

namespace zelvane::win32 {

// The system's menu, as the controls are when it is made.
class PopupMenu {
 public:
  explicit PopupMenu(controls::Menu& control);
  ~PopupMenu();
  PopupMenu(const PopupMenu&) = delete;
  PopupMenu& operator=(const PopupMenu&) = delete;

  HMENU handle() const { return handle_; }

  // Opens at the pointer and returns once it is closed and what was chosen is clicked. `owner` gets
  // the keys, without which the menu would not close when the user clicks elsewhere.
  void open(HWND owner) const;

 private:
  void add(const controls::MenuItem& item, UINT_PTR number) const;

  controls::Menu& control_;
  HMENU handle_;
};

}  // namespace zelvane::win32
