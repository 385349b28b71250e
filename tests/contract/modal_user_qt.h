// A user who waits for a dialog to open and then does something with it.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace zelvane::test {

class ModalUser {
 public:
  ModalUser() {
    QObject::connect(&waiting_, &QTimer::timeout, [this] { look(); });
  }

  // At the next dialog that is open and ready, once.
  void atNextDialog(std::function<void(QWidget& dialog)> deed);

 private:
  void look();

  QTimer waiting_;
  std::function<void(QWidget&)> deed_;
};

}  // namespace zelvane::test
