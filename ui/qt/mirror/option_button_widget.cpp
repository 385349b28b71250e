#include "ui/qt/mirror/option_button_widget.h"

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

OptionButtonWidget::OptionButtonWidget(controls::OptionButton& control, QWidget& parent)
    : QRadioButton(&parent), control_(control) {
  mirrorCaptioned(control, *this);
  follow(control, *this, [this, &control] {
    setText(QString::fromStdString(control.caption()));
    // The toolkit refuses to uncheck the last button of an exclusive group; the control does not.
    setAutoExclusive(false);
    setChecked(control.value());
    setAutoExclusive(true);
  });
  // A screen reader turns the button itself, without a click.
  connect(this, &QRadioButton::toggled, this, [&control](bool on) {
    if (on && !control.value()) {
      control.click();
    }
  });
}

}  // namespace zelvane::qt
