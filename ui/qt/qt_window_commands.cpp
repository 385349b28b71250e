#include "ui/qt/qt_window_commands.h"

#include <QAbstractScrollArea>

namespace zelvane::qt {

void QtWindowCommands::bringForward() {
  if (!window_) {
    return;
  }
  window_->setAttribute(Qt::WA_ShowWithoutActivating, true);
  window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  window_->show();
  window_->raise();
  window_->setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void QtWindowCommands::activate() {
  if (window_) {
    window_->raise();
    window_->activateWindow();
  }
}

void QtWindowCommands::focus(const std::string& controlName) {
  if (QWidget* widget = find(controlName)) {
    widget->setFocus(Qt::OtherFocusReason);
  }
}

void QtWindowCommands::repaint(const std::string& controlName) {
  QWidget* widget = find(controlName);
  if (widget == nullptr) {
    return;
  }
  if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
    area->viewport()->repaint();
  } else {
    widget->repaint();
  }
}

QWidget* QtWindowCommands::find(const std::string& controlName) const {
  return window_ ? window_->findChild<QWidget*>(QString::fromStdString(controlName)) : nullptr;
}

}  // namespace zelvane::qt
