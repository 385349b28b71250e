#include "ui/qt/qt_tray.h"

#include <QCursor>

#include "ui/qt/mirror/picture_widget.h"

namespace zelvane::qt {

namespace {

using controls::Picture;
using platform::NotificationRecord;

// A picture's handle is the number of what it shows, counted from 1.
std::uint32_t handleOf(Picture::Image image) { return static_cast<std::uint32_t>(image) + 1; }

Picture::Image imageOf(std::uint32_t handle) {
  return handle == handleOf(Picture::Image::broom) ? Picture::Image::broom
                                                   : Picture::Image::programIcon;
}

}  // namespace

void QtTray::attach(QWidget& window, QMenu& menu) {
  window_ = &window;
  menu_ = &menu;
}

// There is one window, and nobody but this tray is ever told its handle.
std::uint32_t QtTray::windowHandle(const std::string& formName) const {
  return window_ && window_->objectName() == QString::fromStdString(formName) ? 1 : 0;
}

std::uint32_t QtTray::iconHandle(const std::string& controlName) const {
  if (windowHandle(controlName) != 0) {
    return handleOf(Picture::Image::programIcon);
  }
  const QString name = QString::fromStdString(controlName);
  const auto* picture = window_ ? window_->findChild<PictureWidget*>(name) : nullptr;
  return picture == nullptr ? 0 : handleOf(picture->image());
}

bool QtTray::add(const NotificationRecord& record) {
  if (record_) {
    return false;
  }
  record_ = record;
  lookForPanels();
  follow();
  return true;
}

bool QtTray::modify(const NotificationRecord& record) {
  if (!record_ || !areOfOneIcon(*record_, record)) {
    return false;
  }
  record_ = record;
  if (icon_) {
    showRecord();
  }
  return true;
}

bool QtTray::remove(const NotificationRecord& record) {
  if (!record_ || !areOfOneIcon(*record_, record)) {
    return false;
  }
  record_.reset();
  shown_ = false;
  if (icon_) {
    icon_->hide();
  }
  return true;
}

void QtTray::lookForPanels() {
  if (!notifierHost_) {
    notifierHost_ = std::make_unique<NotifierHost>([this] { follow(); });
    embeddingTray_ = std::make_unique<EmbeddingTray>([this] { follow(); });
  }
}

// Brings the icon in line with what is wanted and what panels there are.
void QtTray::follow() {
  if (!record_) {
    return;
  }
  if (!icon_) {
    settle();
  }
  if (icon_ && !icon_->isVisible()) {
    showRecord();
    icon_->show();
    if (!kind_) {
      learnKind();
    }
  }
  const bool wasShown = shown_;
  shown_ = hasPlace();
  if (wasShown && !shown_) {
    lost_();
  }
}

// A panel that can do both has its items' menus by a way of its own, and better pictures; so
// nothing is settled before it is known whether there is one.
void QtTray::settle() {
  if (!notifierHost_->isThere() || (!*notifierHost_->isThere() && !embeddingTray_->isThere())) {
    return;
  }
  icon_ = std::make_unique<QSystemTrayIcon>();
  QObject::connect(
      icon_.get(), &QSystemTrayIcon::activated, icon_.get(),
      [this](QSystemTrayIcon::ActivationReason reason) { report(reason); }, Qt::QueuedConnection);
}

// The toolkit looks for a panel by itself, and finds more than was known here where one that does
// both has just come. It does not say what it has settled on, but where a notifier item is seen is
// the panel's affair alone, while an embedded window has a place.
void QtTray::learnKind() {
  kind_ = icon_->geometry().isNull() ? Kind::notifier : Kind::embedded;
  if (kind_ == Kind::notifier) {
    icon_->setContextMenu(menu_);
  }
}

bool QtTray::hasPlace() const {
  if (!kind_) {
    return false;
  }
  return kind_ == Kind::notifier ? notifierHost_->isThere().value_or(false)
                                 : embeddingTray_->isThere();
}

void QtTray::showRecord() {
  icon_->setIcon(icon(imageOf(record_->icon)));
  icon_->setToolTip(QString::fromStdString(tipText(*record_)));
}

// A notifier item is activated, whether it was clicked once, twice or by a key; that does what it
// is there for. Of an embedded icon the first click of a double click is a click.
void QtTray::report(QSystemTrayIcon::ActivationReason reason) const {
  switch (reason) {
    case QSystemTrayIcon::Trigger:
      used_(kind_ == Kind::notifier ? kLeftDoubleClicked : kLeftPressed);
      break;
    case QSystemTrayIcon::DoubleClick:
      used_(kLeftDoubleClicked);
      break;
    case QSystemTrayIcon::Context:
      used_(kRightReleased);
      break;
    case QSystemTrayIcon::MiddleClick:
      used_(kMiddleReleased);
      break;
    case QSystemTrayIcon::Unknown:
      break;
  }
}

void QtTray::showMenu(const std::string& menuName) {
  if (menu_ && menu_->objectName() == QString::fromStdString(menuName)) {
    menu_->popup(QCursor::pos());
  }
}

}  // namespace zelvane::qt
