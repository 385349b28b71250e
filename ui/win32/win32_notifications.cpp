#include "ui/win32/win32_notifications.h"

#include <algorithm>
#include <span>

#include <shellapi.h>

#include "platform/windows/wide_text.h"

namespace zelvane::win32 {
namespace {

constexpr UINT kOfIcon = WM_APP;
constexpr auto kClassName = L"ZelvaneNotifications";

NOTIFYICONDATAW iconOf(HWND listener) {
  NOTIFYICONDATAW icon = {};
  icon.cbSize = sizeof icon;
  icon.hWnd = listener;
  icon.uID = 1;
  return icon;
}

// As much of the text as there is room for; the rest is zeros.
void copy(const std::string& text, std::span<wchar_t> room) {
  const std::wstring wide = platform::wideText(text).substr(0, room.size() - 1);
  std::ranges::copy(wide, room.begin());
}

void removeIcon(HWND listener) {
  NOTIFYICONDATAW icon = iconOf(listener);
  Shell_NotifyIconW(NIM_DELETE, &icon);
}

}  // namespace

Win32Notifications::~Win32Notifications() {
  if (listener_ == nullptr) return;
  removeIcon(listener_);
  DestroyWindow(listener_);
}

void Win32Notifications::show(const std::string& title, const std::string& text) {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  if (listener_ == nullptr) {
    WNDCLASSW listener = {};
    listener.lpfnWndProc = answer;
    listener.hInstance = program;
    listener.lpszClassName = kClassName;
    RegisterClassW(&listener);
    listener_ =
        CreateWindowW(kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, program, nullptr);
  }
  removeIcon(listener_);
  NOTIFYICONDATAW icon = iconOf(listener_);
  icon.uFlags = NIF_ICON | NIF_MESSAGE | NIF_INFO;
  icon.uCallbackMessage = kOfIcon;
  icon.hIcon = LoadIconW(program, L"application");
  icon.dwInfoFlags = NIIF_USER;
  copy(title, icon.szInfoTitle);
  copy(text, icon.szInfo);
  Shell_NotifyIconW(NIM_ADD, &icon);
}

LRESULT CALLBACK Win32Notifications::answer(HWND window, UINT message, WPARAM first,
                                            LPARAM second) {
  const bool isOver =
      second == NIN_BALLOONTIMEOUT || second == NIN_BALLOONUSERCLICK || second == NIN_BALLOONHIDE;
  if (message == kOfIcon && isOver) removeIcon(window);
  return DefWindowProcW(window, message, first, second);
}

}  // namespace zelvane::win32
