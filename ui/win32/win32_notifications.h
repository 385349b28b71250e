// Notifications from the notification area.
#pragma once

#include <windows.h>

#include "platform/notifications.h"

namespace zelvane::win32 {

// A message comes from an icon of its own, which leaves when it was read, or had its time, or
// another one comes. Without a notification area nothing is shown.
class Win32Notifications : public platform::Notifications {
 public:
  Win32Notifications() = default;
  ~Win32Notifications() override;

  void show(const std::string& title, const std::string& text) override;

 private:
  static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM first, LPARAM second);

  HWND listener_ = nullptr;  // made at the first message
};

}  // namespace zelvane::win32
