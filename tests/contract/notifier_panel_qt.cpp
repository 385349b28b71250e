#include "tests/contract/notifier_panel_qt.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QTest>
#include <algorithm>
#include <atomic>

namespace zelvane::test {
namespace {

constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kPath = "/StatusNotifierWatcher";
constexpr auto kItem = "org.kde.StatusNotifierItem";
constexpr auto kItemPath = "/StatusNotifierItem";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
constexpr auto kConnection = "panel";

}  // namespace

class NotifierPanel::Service : public QDBusVirtualObject {
 public:
  void start() {
    bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kConnection);
    bus_.registerVirtualObject(kPath, this);
    bus_.registerService(kWatcher);
  }

  void stop() {
    bus_.unregisterService(kWatcher);
    bus_.unregisterObject(kPath);
    bus_ = QDBusConnection("");
    QDBusConnection::disconnectFromBus(kConnection);
    items_.clear();
  }

  QString introspect(const QString&) const override {
    return QString(
               "<interface name=\"%1\">"
               "<property name=\"IsStatusNotifierHostRegistered\" type=\"b\" access=\"read\"/>"
               "</interface>")
        .arg(kWatcher);
  }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    qDebug() << message;
    if (message.member() == "RegisterStatusNotifierItem") {
      const QString item = message.arguments().value(0).toString();
      items_.push_back(item.startsWith('/') ? message.service() : item);
      connection.send(message.createReply());
    } else {
      connection.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
    }
    return true;
  }

  // An item that does not answer any more is one that has gone.
  std::vector<std::string> tips() {
    std::vector<std::string> tips;
    std::vector<QString> present;
    for (const QString& item : items_) {
      QDBusMessage question = QDBusMessage::createMethodCall(item, kItemPath, kProperties, "Get");
      question << kItem << "ToolTip";
      const QDBusMessage answer = bus_.call(question);
      if (answer.type() == QDBusMessage::ReplyMessage) {
        present.push_back(item);
        tips.push_back(titleIn(answer).toStdString());
      }
    }
    items_ = present;
    return tips;
  }

  void use(const char* method) {
    for (const QString& item : items_) {
      QDBusMessage call = QDBusMessage::createMethodCall(item, kItemPath, kItem, method);
      call << 0 << 0;
      bus_.call(call);
    }
  }

 private:
  // A tip is an icon's name, its pictures, a title and a text.
  static QString titleIn(const QDBusMessage& answer) {
    const auto value = answer.arguments().value(0).value<QDBusVariant>().variant();
    const auto tip = value.value<QDBusArgument>();
    QString icon;
    QString title;
    tip.beginStructure();
    tip >> icon;
    tip.asVariant();
    tip >> title;
    return title;
  }

  QDBusConnection bus_{""};
  std::vector<QString> items_;
};

NotifierPanel::NotifierPanel() : service_(new Service) {
  service_->moveToThread(&thread_);
  QObject::connect(&thread_, &QThread::finished, service_, &QObject::deleteLater);
  thread_.start();
  start();
}

NotifierPanel::~NotifierPanel() {
  stop();
  thread_.quit();
  thread_.wait();
}

void NotifierPanel::start() {
  inItsThread([this] { service_->start(); });
}

void NotifierPanel::stop() {
  inItsThread([this] { service_->stop(); });
}

std::vector<std::string> NotifierPanel::tips() {
  std::vector<std::string> tips;
  inItsThread([&] { tips = service_->tips(); });
  return tips;
}

void NotifierPanel::use(const char* method) {
  inItsThread([&] { service_->use(method); });
}

void NotifierPanel::inItsThread(const std::function<void()>& deed) {
  std::atomic<bool> done = false;
  QMetaObject::invokeMethod(
      service_,
      [&] {
        deed();
        done = true;
      },
      Qt::QueuedConnection);
  while (!QTest::qWaitFor([&] { return done.load(); })) {
  }
}

}  // namespace zelvane::test
