// Whether a panel of the desktop shows the status notifier items of programs.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>

class QDBusPendingCallWatcher;

namespace zelvane::qt {

// Source: the StatusNotifierItem specification of freedesktop.org. A watcher on the session's bus
// knows of the panels; the two may come in any order, often in one process. The bus is asked in the
// background, never again and again, and no service is started for it: a blocking question to a
// panel that just then has one to us would stop both for seconds.
class NotifierHost : public QObject {
 public:
  // Starts to ask. `changed` is called whenever the answer is another one.
  explicit NotifierHost(std::function<void()> changed);

  // Nothing until the first answer has come.
  std::optional<bool> isThere() const { return there_; }

 private:
  void watchPanels();
  void ask();
  void hear(QDBusPendingCallWatcher& answer);
  void setThere(bool there);

  std::function<void()> changed_;
  std::optional<bool> there_;
  QTimer soon_;  // until it is asked because of something that a panel said
  QDBusPendingCallWatcher* asked_ = nullptr;  // the latest question, if it is open
};

}  // namespace zelvane::qt
