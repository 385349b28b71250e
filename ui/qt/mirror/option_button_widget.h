// A round button of a group on the screen. The widgets of one group share a parent that holds no
// other group, so that the arrow keys walk through the group.
#pragma once

#include <QRadioButton>

#include "core/controls/option_button.h"

namespace zelvane::qt {

class OptionButtonWidget : public QRadioButton {
 public:
  OptionButtonWidget(controls::OptionButton& control, QWidget& parent);

 protected:
  // The user clicked. What the button shows next is the control's to say.
  void nextCheckState() override { control_.click(); }

 private:
  controls::OptionButton& control_;
};

}  // namespace zelvane::qt
