#include "ui/qt/embedding_tray.h"

#include <QCoreApplication>
#include <string>
#include <utility>

#include <xcb/xcb.h>

#include "ui/qt/mirror/x11.h"

namespace zelvane::qt {

EmbeddingTray::EmbeddingTray(std::function<void()> changed) : changed_(std::move(changed)) {
  xcb_connection_t* connection = x11Connection();
  if (connection == nullptr) {
    return;
  }
  manager_ = atomOf(*connection, "MANAGER");
  selection_ = atomOf(*connection, "_NET_SYSTEM_TRAY_S" + std::to_string(x11Screen()));
  QCoreApplication::instance()->installNativeEventFilter(this);
  look();
}

EmbeddingTray::~EmbeddingTray() {
  if (QCoreApplication* application = QCoreApplication::instance()) {
    application->removeNativeEventFilter(this);
  }
}

// The panel may have gone before its window is watched: so it is asked for once more.
void EmbeddingTray::look() {
  xcb_connection_t* connection = x11Connection();
  do {
    panel_ = ownerOf(*connection, selection_);
    if (panel_ != 0) {
      const std::uint32_t endOfWindow = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
      xcb_change_window_attributes(connection, panel_, XCB_CW_EVENT_MASK, &endOfWindow);
    }
  } while (ownerOf(*connection, selection_) != panel_);
}

bool EmbeddingTray::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") {
    return false;
  }
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  const int kind = event->response_type & 0x7F;  // the rest says whether a program has sent it
  bool affected = false;
  if (kind == XCB_CLIENT_MESSAGE) {
    const auto* told = reinterpret_cast<const xcb_client_message_event_t*>(event);
    affected = told->type == manager_ && told->data.data32[1] == selection_;
  } else if (kind == XCB_DESTROY_NOTIFY) {
    const auto* gone = reinterpret_cast<const xcb_destroy_notify_event_t*>(event);
    affected = gone->window == panel_;
  }
  if (affected) {
    const bool before = isThere();
    look();
    if (isThere() != before) {
      changed_();
    }
  }
  return false;
}

}  // namespace zelvane::qt
