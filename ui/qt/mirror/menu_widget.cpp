#include "ui/qt/mirror/menu_widget.h"

#include <QAction>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

MenuWidget::MenuWidget(controls::Menu& control) {
  setObjectName(QString::fromStdString(control.name()));
  setAccessibleName(plainCaption(control.caption()));
  for (controls::MenuItem* item : control.items()) {
    mirror(*item);
  }
}

// The toolkit moves the mark of what is chosen; it is put back, because the mark is the program's.
void MenuWidget::mirror(controls::MenuItem& item) {
  QAction* action = addAction(QString());
  action->setObjectName(QString::fromStdString(item.name()));
  action->setSeparator(item.separator());
  action->setCheckable(item.markable());
  follow(item, *action, [&item, action] {
    action->setText(item.separator() ? QString() : QString::fromStdString(item.caption()));
    action->setEnabled(item.enabled());
    action->setVisible(item.visible());
    action->setChecked(item.checked());
  });
  connect(action, &QAction::triggered, this, [this, &item, action] {
    action->setChecked(item.checked());
    QMetaObject::invokeMethod(
        this, [&item] { item.click(); }, Qt::QueuedConnection);
  });
}

}  // namespace zelvane::qt
