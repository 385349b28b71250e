// A push button on the screen.
#pragma once

#include <QPushButton>

#include "core/controls/button.h"

namespace zelvane::qt {

class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(controls::Button& control, QWidget& parent);
};

}  // namespace zelvane::qt
