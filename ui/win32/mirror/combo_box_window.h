// A drop-down list on the screen.
#pragma once

#include "core/controls/combo_box.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class ComboBoxWindow : public Window {
 public:
  ComboBoxWindow(controls::ComboBox& control, Pane& parent);

  Size natural() const override;
  void place(const Area& area) override;
  void onCommand(WORD code) override;
  void onLookChanged() override;

 private:
  int closedHeight() const;
  void fitHeight() const;

  controls::ComboBox& control_;
};

}  // namespace zelvane::win32
