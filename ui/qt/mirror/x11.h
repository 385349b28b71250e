// The few things of the X server that the toolkit does not do for us.
#pragma once

#include <cstdint>
#include <string>

struct xcb_connection_t;

namespace zelvane::qt {

// The toolkit's own connection; null on any other kind of display.
xcb_connection_t* x11Connection();

// The number of the screen that it is for.
int x11Screen();

// The server's number for a name; 0 where it does not answer.
std::uint32_t atomOf(xcb_connection_t& connection, const std::string& name);

// The window that owns a selection; 0 for none.
std::uint32_t ownerOf(xcb_connection_t& connection, std::uint32_t selection);

// Takes back a window's wish to be minimised when it is shown next; without X11, nothing happens.
void wishToStartNormal(std::uint32_t window);

}  // namespace zelvane::qt
