#include "ui/qt/mirror/combo_box_widget.h"

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

ComboBoxWidget::ComboBoxWidget(controls::ComboBox& control, QWidget& parent) : QComboBox(&parent) {
  for (const std::string& item : control.items()) {
    addItem(QString::fromStdString(item));
  }
  setMaxVisibleItems(count());
  mirrorControl(control, *this);
  follow(control, *this, [this, &control] { setCurrentIndex(control.listIndex()); });
  // "activated" comes with each choice of the user, also of the item that is chosen already.
  connect(this, &QComboBox::activated, this,
          [&control](int index) { control.setListIndex(index); });
}

}  // namespace zelvane::qt
