#include "tests/contract/modal_user_windows.h"

#include <string_view>
#include <utility>

namespace zelvane::test {
namespace {

constexpr UINT_PTR kTimer = 1;

HWND openBox() {
  HWND found = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM parameter) -> BOOL {
        wchar_t name[16] = L"";
        GetClassNameW(window, name, 16);
        if (std::wstring_view(name) != L"#32770" || !IsWindowVisible(window)) {
          return TRUE;
        }
        *reinterpret_cast<HWND*>(parameter) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace

ModalUser::ModalUser()
    : window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr)) {
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(deliver));
}

ModalUser::~ModalUser() { DestroyWindow(window_); }

void ModalUser::atNextDialog(std::function<void(HWND box)> deed) {
  deed_ = std::move(deed);
  SetTimer(window_, kTimer, 10, nullptr);
}

LRESULT CALLBACK ModalUser::deliver(HWND window, UINT message, WPARAM word, LPARAM value) {
  if (message == WM_TIMER) {
    reinterpret_cast<ModalUser*>(GetWindowLongPtrW(window, GWLP_USERDATA))->look();
    return 0;
  }
  return DefWindowProcW(window, message, word, value);
}

void ModalUser::look() {
  const HWND box = openBox();
  if (box == nullptr || !deed_) {
    return;
  }
  KillTimer(window_, kTimer);
  std::exchange(deed_, nullptr)(box);
}

}  // namespace zelvane::test
