#include "ui/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <xcb/xcb.h>

namespace zelvane::qt {

namespace {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t atomOf(xcb_connection_t* connection, const char* name) {
  const auto cookie =
      xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
  const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(
      xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_NONE};
}

// On X11 what is copied belongs to the program that copied it. The toolkit takes it away in the
// name of the last event it has seen, and the server refuses that when the other program copied
// later: during a scheduled run, say. In the name of the present it is never refused.
void takeFromOtherPrograms() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) {
    return;
  }
  xcb_connection_t* connection = x11->connection();
  for (const xcb_atom_t selection :
       {atomOf(connection, "CLIPBOARD"), xcb_atom_t{XCB_ATOM_PRIMARY}}) {
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
