// A check box on the screen.
#pragma once

#include "core/controls/check_box.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class CheckBoxWindow : public Window {
 public:
  CheckBoxWindow(controls::CheckBox& control, Pane& parent);

  Size natural() const override;
  void onCommand(WORD code) override;

 private:
  controls::CheckBox& control_;
};

// What a box or round button takes with the caption beside it.
Size markedSize(const Window& window);

}  // namespace zelvane::win32
