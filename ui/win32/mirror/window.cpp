#include "ui/win32/mirror/window.h"

#include <utility>

#include <commctrl.h>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::win32 {

namespace {

// Finds the object by its handle. A window that stands for a control has its name as an atom, too,
// by which other programs (a test, say) can find it.
constexpr auto kObject = L"Zelvane.object";
constexpr auto kControlName = L"Zelvane.control";

void registerPaneClass() {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hIcon = LoadIconW(windowClass.hInstance, L"application");
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kPaneClass;
  RegisterClassExW(&windowClass);  // fails harmlessly from the second time on
}

}  // namespace

const wchar_t* const kPaneClass = L"Zelvane.pane";

Window::Window(const Make& make, HWND parent, Look& look) : look_(look) {
  registerPaneClass();
  handle_ = CreateWindowExW(make.extendedStyle, make.className, L"", make.style, 0, 0, 0, 0, parent,
                            nullptr, GetModuleHandleW(nullptr), nullptr);
  if (handle_ == nullptr) {
    platform::throwSystemError();
  }
  SetPropW(handle_, kObject, this);
  SetWindowSubclass(handle_, deliver, 0, reinterpret_cast<DWORD_PTR>(this));
  setFont(Font::normal);
}

Window::~Window() { destroy(); }

void Window::destroy() {
  if (handle_ != nullptr) {
    DestroyWindow(handle_);
  }
}

Window* Window::of(HWND handle) {
  return handle == nullptr ? nullptr : static_cast<Window*>(GetPropW(handle, kObject));
}

Window* Window::find(HWND above, const std::string& controlName) {
  struct Search {
    const std::string& name;
    Window* found;
  } search{controlName, nullptr};
  EnumChildWindows(
      above,
      [](HWND child, LPARAM parameter) -> BOOL {
        auto& sought = *reinterpret_cast<Search*>(parameter);
        Window* window = of(child);
        const bool hit = window != nullptr && window->control() != nullptr &&
                         window->control()->name() == sought.name;
        sought.found = hit ? window : nullptr;
        return hit ? FALSE : TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void Window::setControl(const controls::Control& control) {
  control_ = &control;
  const ATOM name = GlobalAddAtomW(platform::wideText(control.name()).c_str());
  SetPropW(handle_, kControlName, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(name)));
}

void Window::place(const Area& area) {
  if (area == place_) {
    return;
  }
  place_ = area;
  SetWindowPos(handle_, nullptr, area.left, area.top, area.width, area.height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::setShown(bool shown) {
  if (shown != isShown()) {
    if (!shown) {
      passKeysOn();
    }
    ShowWindow(handle_, shown ? SW_SHOWNA : SW_HIDE);
    askForLayout();
  }
}

void Window::setUsable(bool usable) {
  if (!usable) {
    passKeysOn();
  }
  EnableWindow(handle_, usable ? TRUE : FALSE);
}

// The system leaves the keys with a window that cannot be used any more, where they are lost.
void Window::passKeysOn() {
  if (GetFocus() == handle_) {
    const HWND root = GetAncestor(handle_, GA_ROOT);
    const HWND next = GetNextDlgTabItem(root, handle_, FALSE);
    SetFocus(next == handle_ ? root : next);
  }
}

void Window::askForLayout() const {
  PostMessageW(GetAncestor(handle_, GA_ROOT), kLayoutMessage, 0, 0);
}

std::wstring Window::text() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle_)), L'\0');
  text.resize(static_cast<std::size_t>(
      GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()) + 1)));
  return text;
}

void Window::setCaption(const std::wstring& caption) {
  if (caption != caption_) {
    caption_ = caption;
    SetWindowTextW(handle_, caption.c_str());
  }
}

void Window::setFont(Font font) {
  font_ = font;
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(look_.font(font)), TRUE);
}

void Window::onLookChanged() { setFont(font_); }

LRESULT Window::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_SETFOCUS) {
    for (HWND above = GetParent(handle_); above != nullptr; above = GetParent(above)) {
      if (Window* window = of(above)) {
        window->onFocusBelow(handle_);
      }
    }
  }
  return DefSubclassProc(handle_, message, word, value);
}

LRESULT CALLBACK Window::deliver(HWND handle, UINT message, WPARAM word, LPARAM value,
                                 UINT_PTR /*id*/, DWORD_PTR object) {
  auto& window = *reinterpret_cast<Window*>(object);
  if (message == WM_NCDESTROY) {
    RemovePropW(handle, kObject);
    GlobalDeleteAtom(
        static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(handle, kControlName))));
    RemoveWindowSubclass(handle, deliver, 0);
    window.handle_ = nullptr;
    return DefSubclassProc(handle, message, word, value);
  }
  return window.onMessage(message, word, value);
}

}  // namespace zelvane::win32
