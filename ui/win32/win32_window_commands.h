// What the program asks of its window.
#pragma once

#include <windows.h>

#include "platform/window_commands.h"

namespace zelvane::win32 {

class Win32WindowCommands : public platform::WindowCommands {
 public:
  // Until there is a window, every command does nothing.
  void attach(HWND window) { window_ = window; }

  void bringForward() override;
  void activate() override;
  void focus(const std::string& controlName) override;
  void repaint(const std::string& controlName) override;

 private:
  HWND window_ = nullptr;
};

}  // namespace zelvane::win32
