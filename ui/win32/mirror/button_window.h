// A push button on the screen.
#pragma once

#include "core/controls/button.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class ButtonWindow : public Window {
 public:
  ButtonWindow(controls::Button& control, Pane& parent);

  Size natural() const override;
  void onCommand(WORD code) override;

 private:
  controls::Button& control_;
};

}  // namespace zelvane::win32
