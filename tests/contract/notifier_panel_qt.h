// A panel of a desktop that shows status notifier items.
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QThread>
#include <functional>
#include <string>
#include <vector>

namespace zelvane::test {

// It has a thread of its own and a connection of its own to the session's bus, because programs and
// panels ask each other, and wait for the answer.
class NotifierPanel {
 public:
  NotifierPanel();
  ~NotifierPanel();

  // Comes to the desktop, or leaves it, with all it knows.
  void start();
  void stop();

  // The tips of the items that it shows, as they are now.
  std::vector<std::string> tips();

  // Calls what a panel calls when its user does something: "Activate", "ContextMenu". Each item
  // that is shown has answered when it returns.
  void use(const char* method);

 private:
  class Service;

  // Runs it in the panel's thread, while this one goes on to deliver events.
  void inItsThread(const std::function<void()>& deed);

  QThread thread_;
  Service* service_;
};

}  // namespace zelvane::test
