#include "ui/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include "ui/qt/mirror/x11.h"

namespace zelvane::qt {

namespace {

// On X11 what is copied belongs to the program that copied it. The toolkit takes it away in the
// name of the last event it has seen, and the server refuses that when the other program copied
// later: during a scheduled run, say. In the name of the present it is never refused.
void takeFromOtherPrograms() {
  xcb_connection_t* connection = x11Connection();
  if (connection == nullptr) {
    return;
  }
  for (const xcb_atom_t selection :
       {atomOf(*connection, "CLIPBOARD"), xcb_atom_t{XCB_ATOM_PRIMARY}}) {
    xcb_set_selection_owner(connection, XCB_NONE, selection, XCB_CURRENT_TIME);
  }
  xcb_flush(connection);
}

}  // namespace

void QtClipboard::clear() {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear(QClipboard::Clipboard);
  if (clipboard->supportsSelection()) {
    clipboard->clear(QClipboard::Selection);
  }
  takeFromOtherPrograms();
}

}  // namespace zelvane::qt
