#include "ui/win32/message_loop.h"

#include "ui/win32/mirror/form_window.h"

namespace zelvane::win32 {

void deliver(MSG& message) {
  const HWND root = message.hwnd == nullptr ? nullptr : GetAncestor(message.hwnd, GA_ROOT);
  auto* form = dynamic_cast<FormWindow*>(Window::of(root));
  if (form != nullptr && message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) {
    form->followPointer(message);
  }
  if (form != nullptr && (form->onKey(message) || IsDialogMessageW(root, &message))) {
    return;
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void runMessageLoop() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    deliver(message);
  }
}

}  // namespace zelvane::win32
