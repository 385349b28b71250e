#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTest>
#include <QTextDocumentFragment>

#include "tests/contract/notifications_contract.h"
#include "ui/qt/qt_notifications.h"

namespace zelvane::test {
namespace {

constexpr auto kService = "org.freedesktop.Notifications";
constexpr auto kPath = "/org/freedesktop/Notifications";

// The desktop's service, as a program of the session's bus meets it. Bodies are shown as the markup
// that they are.
class Service : public QDBusVirtualObject {
 public:
  Service() {
    QDBusConnection::sessionBus().registerVirtualObject(kPath, this);
    QDBusConnection::sessionBus().registerService(kService);
  }
  ~Service() override {
    QDBusConnection::sessionBus().unregisterService(kService);
    QDBusConnection::sessionBus().unregisterObject(kPath);
  }

  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    const QList<QVariant> told = message.arguments();
    QString body = told.value(4).toString();
    body = QTextDocumentFragment::fromHtml(body.replace("\n", "<br>")).toPlainText();
    seen.push_back((told.value(3).toString() + ": " + body).toStdString());
    connection.send(message.createReply(QVariant(1U)));
    return true;
  }

  std::vector<std::string> seen;
};

class QtNotificationsBed : public NotificationsBed {
 public:
  platform::Notifications& notifications() override { return notifications_; }
  std::vector<std::string> seen() override {
    // Messages of one program arrive in their order, so a later answer tells that all have arrived.
    QDBusMessage last = QDBusMessage::createMethodCall(kService, kPath, kService, "Notify");
    last << "" << 0U << ""
         << "last"
         << "";
    QDBusConnection::sessionBus().call(last, QDBus::BlockWithGui);
    service_.seen.pop_back();
    return service_.seen;
  }

 private:
  Service service_;
  qt::QtNotifications notifications_;
};

INSTANTIATE_TEST_SUITE_P(Qt, NotificationsContract,
                         testing::Values([]() -> std::unique_ptr<NotificationsBed> {
                           return std::make_unique<QtNotificationsBed>();
                         }));

TEST(QtNotifications, WithoutAServiceNothingIsShownAndNobodyWaits) {
  qt::QtNotifications().show("Zelvane", "unseen");

  EXPECT_FALSE(QDBusConnection::sessionBus().interface()->isServiceRegistered(kService));
}

}  // namespace
}  // namespace zelvane::test
