#include "ui/qt/mirror/up_down_widget.h"

#include <cstdlib>

#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/text_box_widget.h"

namespace zelvane::qt {

UpDownWidget::UpDownWidget(controls::UpDown& control, TextBoxWidget& box, QWidget& parent)
    : QAbstractSpinBox(&parent), control_(control) {
  const QString boxName = box.objectName();
  setLineEdit(&box);
  // The toolkit gives the line of a spin box a name of its own.
  box.setObjectName(boxName);
  mirrorControl(control, *this);
}

void UpDownWidget::stepBy(int steps) {
  for (int left = std::abs(steps); left > 0; --left) {
    control_.step(steps > 0 ? 1 : -1);
  }
}

}  // namespace zelvane::qt
