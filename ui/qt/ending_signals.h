// The signals with which a Linux system, or a terminal, tells a program to go.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <optional>

namespace zelvane::qt {

// SIGTERM, SIGINT and SIGHUP become a call in the event loop, also in one inside of a box or of a
// run. One that the program was started to ignore stays ignored, as `nohup` and shells want it.
// Programs that this one starts are told to go as usual. One object a process.
class EndingSignals : public QObject {
 public:
  explicit EndingSignals(std::function<void()> quit);
  ~EndingSignals() override;

 private:
  int ends_[2] = {-1, -1};  // of a pipe: where it is read, where it is written
  std::function<void()> quit_;
  std::optional<QSocketNotifier> notifier_;
};

}  // namespace zelvane::qt
