#include "ui/win32/win32_clipboard.h"

#include <windows.h>

#include "platform/windows/system_error.h"

namespace zelvane::win32 {

namespace {

// Programs that watch the clipboard open it for a moment whenever somebody copies.
bool open() {
  constexpr int kAttempts = 20;
  constexpr DWORD kPause = 5;  // milliseconds
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (OpenClipboard(nullptr) != FALSE) {
      return true;
    }
    Sleep(kPause);
  }
  return false;
}

}  // namespace

void Win32Clipboard::clear() {
  if (!open()) {
    platform::throwSystemError();
  }
  const bool emptied = EmptyClipboard() != FALSE;
  CloseClipboard();
  if (!emptied) {
    throw platform::Error(platform::ErrorNumber::permissionDenied);
  }
}

}  // namespace zelvane::win32
