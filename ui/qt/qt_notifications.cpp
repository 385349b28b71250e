#include "ui/qt/qt_notifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>

namespace zelvane::qt {

void QtNotifications::show(const std::string& title, const std::string& text) {
  constexpr auto kService = "org.freedesktop.Notifications";
  constexpr int kAsLongAsTheDesktopLikes = -1;
  QDBusMessage call = QDBusMessage::createMethodCall(kService, "/org/freedesktop/Notifications",
                                                     kService, "Notify");
  // A text may have some markup, so what looks like it must not be taken for it; a title has none.
  call << QGuiApplication::applicationDisplayName() << 0U << QStringLiteral("zelvane")
       << QString::fromStdString(title) << QString::fromStdString(text).toHtmlEscaped()
       << QStringList() << QVariantMap() << kAsLongAsTheDesktopLikes;
  QDBusConnection::sessionBus().asyncCall(call);
}

}  // namespace zelvane::qt
