#include "ui/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zelvane::qt {

void QtClipboard::clear() {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear(QClipboard::Clipboard);
  if (clipboard->supportsSelection()) {
    clipboard->clear(QClipboard::Selection);
  }
}

}  // namespace zelvane::qt
