#include "ui/qt/application.h"

#include <QEvent>

namespace zelvane::qt {

Application::Application(int& count, char** names) : QApplication(count, names) {
  setApplicationName("zelvane");
  setDesktopFileName("zelvane");
  setQuitOnLastWindowClosed(false);
}

// The toolkit's own way is to close every window, as if the user had used the close boxes, and that
// would only minimise this program.
bool Application::event(QEvent* event) {
  if (event->type() == QEvent::Quit && quit_) {
    quit_();
    return true;
  }
  return QApplication::event(event);
}

}  // namespace zelvane::qt
