#include "ui/qt/mirror/check_box_widget.h"

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

namespace {

Qt::CheckState stateOf(int value) {
  switch (value) {
    case controls::CheckBox::kChecked:
      return Qt::Checked;
    case controls::CheckBox::kGreyed:
      return Qt::PartiallyChecked;
    default:
      return Qt::Unchecked;
  }
}

}  // namespace

CheckBoxWidget::CheckBoxWidget(controls::CheckBox& control, QWidget& parent)
    : QCheckBox(&parent), control_(control) {
  mirrorCaptioned(control, *this);
  follow(control, *this, [this, &control] {
    setText(QString::fromStdString(control.caption()));
    setCheckState(stateOf(control.value()));
  });
  // A screen reader turns the box itself, without a click.
  connect(this, &QCheckBox::stateChanged, this, [this, &control](int state) {
    if (state != stateOf(control.value())) {
      control.click();
      setCheckState(stateOf(control.value()));
    }
  });
}

}  // namespace zelvane::qt
