// What a screen reader says of a window, where the system cannot tell from the window's text.
#pragma once

#include <string>

#include "ui/win32/mirror/window.h"

namespace zelvane::win32 {

// A system without the service for that (which asks that the thread has started COM) goes on with
// what it can tell. Starting the service takes as long as many windows do, so that a name waits
// until the first ones are on the screen.
void setSpokenName(Window& window, const std::wstring& name);
void setSpokenDescription(HWND window, const std::wstring& description);

}  // namespace zelvane::win32
