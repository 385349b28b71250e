#include "ui/qt/mirror/x11.h"

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

// Of the nine numbers of a window's hints the first says which others are meant.
void wishToStartNormal(std::uint32_t window) {
  constexpr std::uint32_t kNumbers = 9;
  constexpr int kInitialState = 2;
  constexpr std::uint32_t kNormal = 1;
  xcb_connection_t* connection = x11Connection();
  if (connection == nullptr) {
    return;
  }
  const auto cookie =
      xcb_get_property(connection, 0, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 0, kNumbers);
  const std::unique_ptr<xcb_get_property_reply_t, Free> reply(
      xcb_get_property_reply(connection, cookie, nullptr));
  if (reply && reply->value_len == kNumbers) {
    auto* hints = static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
    hints[kInitialState] = kNormal;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_HINTS,
                        XCB_ATOM_WM_HINTS, 32, kNumbers, hints);
  }
}

}  // namespace zelvane::qt
