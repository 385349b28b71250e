#include "ui/qt/mirror/button_widget.h"

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

ButtonWidget::ButtonWidget(controls::Button& control, QWidget& parent) : QPushButton(&parent) {
  mirrorCaptioned(control, *this);
  follow(control, *this, [this, &control] { setText(QString::fromStdString(control.caption())); });
  connect(this, &QPushButton::clicked, this, [&control] { control.click(); });
}

}  // namespace zelvane::qt
