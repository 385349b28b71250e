// The small arrows on the screen, in one frame with the text box that they count.
#pragma once

#include <QAbstractSpinBox>

#include "core/controls/up_down.h"

namespace zelvane::qt {

class TextBoxWidget;

class UpDownWidget : public QAbstractSpinBox {
 public:
  // Takes the box, which belongs to this widget from here on.
  UpDownWidget(controls::UpDown& control, TextBoxWidget& box, QWidget& parent);

  void stepBy(int steps) override;

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }

 private:
  controls::UpDown& control_;
};

}  // namespace zelvane::qt
