// A panel of a desktop that shows status notifier items.
#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QProcess>
#include <string>
#include <vector>

namespace zelvane::test {

// A process of its own, the same that the tests of the whole program use, because programs and
// panels ask each other and wait for the answer. While it is asked, this process goes on to deliver
// events.
class NotifierPanel {
 public:
  NotifierPanel() { start(); }
  NotifierPanel(const NotifierPanel&) = delete;
  NotifierPanel& operator=(const NotifierPanel&) = delete;
  ~NotifierPanel() { stop(); }

  // Comes to the desktop, or leaves it as if it had crashed, with all it knows.
  void start();
  void stop();

  // The tips of the items that it shows, as they are now. None while it is not there.
  std::vector<std::string> tips();

  // Calls what a panel calls when its user does something with the one item that it shows:
  // "Activate", "ContextMenu". The item has answered when it returns.
  void use(const char* method);

 private:
  QJsonValue ask(const QJsonArray& question);
  QByteArray line();

  QProcess process_;
};

}  // namespace zelvane::test
