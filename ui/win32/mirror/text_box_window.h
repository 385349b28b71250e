// A line to type into on the screen.
#pragma once

#include "core/controls/text_box.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class TextBoxWindow : public Window {
 public:
  TextBoxWindow(controls::TextBox& control, Pane& parent);

  Size natural() const override;
  void onCommand(WORD code) override;
  HBRUSH onColours(HDC surface) override;

 private:
  void showText();

  controls::TextBox& control_;
  bool showing_ = false;  // the control's text is being set, which the system takes for typing
};

}  // namespace zelvane::win32
