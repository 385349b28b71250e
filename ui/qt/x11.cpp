#include "ui/qt/x11.h"

#include <QGuiApplication>
#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace zelvane::qt {

namespace {

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

}  // namespace

xcb_connection_t* x11Connection() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

int x11Screen() {
  char* host = nullptr;
  int display = 0;
  int screen = 0;
  xcb_parse_display(nullptr, &host, &display, &screen);
  const std::unique_ptr<char, Free> ours(host);
  return screen;
}

std::uint32_t atomOf(xcb_connection_t& connection, const std::string& name) {
  const auto cookie =
      xcb_intern_atom(&connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
  const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
      xcb_intern_atom_reply(&connection, cookie, nullptr));
  return reply ? reply->atom : std::uint32_t{XCB_NONE};
}

std::uint32_t ownerOf(xcb_connection_t& connection, std::uint32_t selection) {
  const auto cookie = xcb_get_selection_owner(&connection, selection);
  const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> reply(
      xcb_get_selection_owner_reply(&connection, cookie, nullptr));
  return reply ? reply->owner : std::uint32_t{XCB_NONE};
}

}  // namespace zelvane::qt
