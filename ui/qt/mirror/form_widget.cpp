#include "ui/qt/mirror/form_widget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHideEvent>
#include <QShowEvent>
#include <QWindow>

#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/x11.h"

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
  if (!control_.visible()) {
    if (!isHidden()) {
      hide();
    }
  } else if (isHidden()) {
    showState();
    show();
  } else if (!isToBeMinimised()) {
    showState();
  } else {
    QMetaObject::invokeMethod(
        this, [this] { showState(); }, Qt::QueuedConnection);
  }
}

bool FormWidget::isToBeMinimised() const {
  return control_.state() == controls::Form::State::minimised;
}

void FormWidget::showState() {
  if (control_.visible() && isToBeMinimised() != isMinimized()) {
    setWindowState(windowState() ^ Qt::WindowMinimized);
  }
}

void FormWidget::setVisible(bool visible) {
  if (visible && !isMinimized() && windowHandle() != nullptr) {
    wishToStartNormal(static_cast<std::uint32_t>(windowHandle()->winId()));
  }
  QMainWindow::setVisible(visible);
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
    keepActive();
  }
}

// A window that is hidden and shown within a tenth of a second has the desktop's keys all the time,
// as far as the toolkit knows; its widgets have forgotten that they are active.
void FormWidget::keepActive() {
  if (!isActiveWindow() && QGuiApplication::focusWindow() == windowHandle()) {
    QApplication::setActiveWindow(this);
  }
}

void FormWidget::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  if (!event->spontaneous()) {
    control_.setVisible(false);
  }
}

}  // namespace zelvane::qt
