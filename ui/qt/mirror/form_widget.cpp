#include "ui/qt/mirror/form_widget.h"

#include <QCloseEvent>
#include <QHideEvent>
#include <QShowEvent>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

FormWidget::FormWidget(controls::Form& control, QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), control_(control) {
  setObjectName(QString::fromStdString(control.name()));
  follow(control, *this, [this] { showControl(); });
}

void FormWidget::showControl() {
  const QString caption = plainCaption(control_.caption());
  setWindowTitle(caption);
  setAccessibleName(caption);
  setEnabled(control_.enabled());
  const bool minimised = control_.state() == controls::Form::State::minimised;
  if (minimised != isMinimized()) {
    setWindowState(windowState() ^ Qt::WindowMinimized);
  }
  if (control_.visible() == isHidden()) {
    setVisible(control_.visible());
  }
}

bool FormWidget::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    control_.activated.raise();
  }
  return QMainWindow::event(event);
}

void FormWidget::closeEvent(QCloseEvent* event) {
  event->setAccepted(control_.unload(controls::UnloadMode::controlMenu));
}

void FormWidget::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    control_.setState(isMinimized() ? controls::Form::State::minimised
                                    : controls::Form::State::normal);
  }
}

// A spontaneous one is the desktop's: the window went to another desktop or is minimised.
void FormWidget::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) {
    control_.setVisible(true);
  }
}

void FormWidget::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  if (!event->spontaneous()) {
    control_.setVisible(false);
  }
}

}  // namespace zelvane::qt
