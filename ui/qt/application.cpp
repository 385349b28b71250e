#include "ui/qt/application.h"

#include <QEvent>
#include <QSessionManager>

namespace zelvane::qt {

Application::Application(int& count, char** names) : QApplication(count, names) {
  setApplicationName("zelvane");
  setDesktopFileName("zelvane");
  setQuitOnLastWindowClosed(false);
  // Whether the next session starts the program is its user's choice; a session manager that brings
  // back what was running would start it unasked. Nothing else is done while the end of the session
  // is only being asked about.
  const auto stayAway = [](QSessionManager& manager) {
    manager.setRestartHint(QSessionManager::RestartNever);
  };
  connect(this, &QGuiApplication::commitDataRequest, this, stayAway, Qt::DirectConnection);
  connect(this, &QGuiApplication::saveStateRequest, this, stayAway, Qt::DirectConnection);
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
