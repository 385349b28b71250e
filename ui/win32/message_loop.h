// Hands the system's messages to the windows they are for.
#pragma once

#include <windows.h>

namespace zelvane::win32 {

// One message: the keys that walk through a window and press its buttons first.
void deliver(MSG& message);

// All of them, until the process ends.
void runMessageLoop();

}  // namespace zelvane::win32
