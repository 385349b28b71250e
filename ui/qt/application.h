// The toolkit's application object, and what the end of the session means to it.
#pragma once

#include <QApplication>
#include <functional>

namespace zelvane::qt {

class Application : public QApplication {
 public:
  // `count` and `names` are as QApplication wants them, and outlive this.
  Application(int& count, char** names);

  // Called when the program is told to go: at the end of the session, once that is certain, and by
  // whatever else asks the toolkit to quit.
  void whenToldToQuit(std::function<void()> quit) { quit_ = std::move(quit); }

 protected:
  bool event(QEvent* event) override;

 private:
  std::function<void()> quit_;
};

}  // namespace zelvane::qt
