#include "ui/qt/notifier_host.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <utility>

namespace zelvane::qt {

namespace {

constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kPath = "/StatusNotifierWatcher";

}  // namespace

NotifierHost::NotifierHost(std::function<void()> changed) : changed_(std::move(changed)) {
  if (!QDBusConnection::sessionBus().isConnected()) {
    there_ = false;
    return;
  }
  auto* owners = new QDBusServiceWatcher(kWatcher, QDBusConnection::sessionBus(),
                                         QDBusServiceWatcher::WatchForOwnerChange, this);
  connect(owners, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] { ask(); });
  watchPanels();
  ask();
}

// Where the watcher is a service of the desktop's, panels come and go without it.
void NotifierHost::watchPanels() {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, [this] { ask(); });
  for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
    QDBusConnection::sessionBus().connect(kWatcher, kPath, kWatcher, signal, &soon_, SLOT(start()));
  }
}

void NotifierHost::ask() {
  QDBusMessage question =
      QDBusMessage::createMethodCall(kWatcher, kPath, "org.freedesktop.DBus.Properties", "Get");
  question << kWatcher << "IsStatusNotifierHostRegistered";
  question.setAutoStartService(false);
  asked_ = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(asked_, &QDBusPendingCallWatcher::finished, this,
          [this](QDBusPendingCallWatcher* answer) { hear(*answer); });
}

// An answer to a question that was asked anew is out of date.
void NotifierHost::hear(QDBusPendingCallWatcher& answer) {
  answer.deleteLater();
  if (&answer == asked_) {
    asked_ = nullptr;
    const QDBusPendingReply<QDBusVariant> reply = answer;
    setThere(!reply.isError() && reply.value().variant().toBool());
  }
}

void NotifierHost::setThere(bool there) {
  if (there_ != there) {
    there_ = there;
    changed_();
  }
}

}  // namespace zelvane::qt
