// A check box on the screen.
#pragma once

#include <QCheckBox>

#include "core/controls/check_box.h"

namespace zelvane::qt {

class CheckBoxWidget : public QCheckBox {
 public:
  CheckBoxWidget(controls::CheckBox& control, QWidget& parent);

 protected:
  // The user clicked. What the box shows next is the control's to say.
  void nextCheckState() override { control_.click(); }

 private:
  controls::CheckBox& control_;
};

}  // namespace zelvane::qt
