// What a screen reader says of a window, where the system cannot tell from the window's text.
#pragma once

#include <string>

#include <windows.h>

namespace zelvane::win32 {

// A system without the service for that (which asks that the thread has started COM) goes on with
// what it can tell.
void setSpokenName(HWND window, const std::wstring& name);
void setSpokenDescription(HWND window, const std::wstring& description);

}  // namespace zelvane::win32
