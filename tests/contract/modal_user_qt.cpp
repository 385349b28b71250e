#include "tests/contract/modal_user_qt.h"

#include <QApplication>
#include <utility>

namespace zelvane::test {

void ModalUser::atNextDialog(std::function<void(QWidget& dialog)> deed) {
  deed_ = std::move(deed);
  waiting_.start(0);
}

void ModalUser::look() {
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr || !dialog->isVisible()) {
    return;
  }
  waiting_.stop();
  std::exchange(deed_, nullptr)(*dialog);
}

}  // namespace zelvane::test
