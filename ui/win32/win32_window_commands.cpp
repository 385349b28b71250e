#include "ui/win32/win32_window_commands.h"

#include "ui/win32/mirror/window.h"

namespace zelvane::win32 {

// The system puts a window above those of other programs only if it is activated, which would take
// the keys away, or if it is to stay on top, which takes it there without.
void Win32WindowCommands::bringForward() {
  if (window_ == nullptr) {
    return;
  }
  constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  ShowWindow(window_, IsIconic(window_) ? SW_SHOWNOACTIVATE : SW_SHOWNA);
  SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, kOrderOnly);
  SetWindowPos(window_, HWND_NOTOPMOST, 0, 0, 0, 0, kOrderOnly);
}

void Win32WindowCommands::activate() {
  if (window_ != nullptr) {
    SetForegroundWindow(window_);
  }
}

void Win32WindowCommands::focus(const std::string& controlName) {
  if (const Window* window = Window::find(window_, controlName)) {
    SetFocus(window->handle());
  }
}

void Win32WindowCommands::repaint(const std::string& controlName) {
  if (const Window* window = Window::find(window_, controlName)) {
    UpdateWindow(window->handle());
  }
}

}  // namespace zelvane::win32
