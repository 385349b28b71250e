#include "ui/win32/mirror/window.h"

#include <utility>

#include <commctrl.h>

#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::win32 {

namespace {

// The property of a window that stands for a control: its name, as an atom.
constexpr auto kControlName = L"Zelvane.control";

// Asks a window for its object; no other program's message has that number. A property would answer
// as well, but costs the system much more than a window of this thread does.
UINT objectMessage() {
  static const UINT kMessage = RegisterWindowMessageW(L"Zelvane.object");
  return kMessage;
}

// What windows are made from: the system's common controls, and ours.
bool registerClasses() {
  const INITCOMMONCONTROLSEX common{sizeof common,
                                    ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&common);
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hIcon = LoadIconW(windowClass.hInstance, L"application");
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kPaneClass;
  return RegisterClassExW(&windowClass) != 0;
}

}  // namespace

const wchar_t* const kPaneClass = L"Zelvane.pane";

Window::Window(const Make& make, Window& above, Making making)
    : make_(make), above_(&above), look_(above.look()), place_{.width = make.width} {
  if (above.isMade() && making == Making::now) {
    makeHandle(above.handle());
  }
}

Window::Window(const Make& make, HWND owner, Look& look) : make_(make), look_(look) {
  makeHandle(owner);
}

void Window::makeHandle(HWND parent) {
  // For the whole process, as the system keeps it.
  [[maybe_unused]] static const bool kRegistered = registerClasses();
  handle_ = CreateWindowExW(make_.extendedStyle, make_.className, caption_.c_str(), make_.style,
                            place_.left, place_.top, place_.width, place_.height, parent,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(number_)),
                            GetModuleHandleW(nullptr), nullptr);
  if (handle_ == nullptr) {
    platform::throwSystemError();
  }
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  ofClass_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(deliver)));
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(look_.font(font_)), FALSE);
}

void Window::makeWindow() {
  if (!isMade()) {
    makeHandle(above_->handle());
  }
  makeBelow();
  for (const auto& act : std::exchange(whenMade_, {})) {
    act();
  }
}

void Window::whenMade(std::function<void()> act) {
  if (isMade()) {
    act();
  } else {
    whenMade_.push_back(std::move(act));
  }
}

void Window::whenSettled(std::function<void()> act) {
  if (isSettled()) {
    act();
  } else {
    whenSettled_.push_back(std::move(act));
  }
}

void Window::settle() {
  for (const auto& act : std::exchange(whenSettled_, {})) {
    act();
  }
}

Window::~Window() { destroy(); }

void Window::destroy() {
  if (handle_ != nullptr) {
    DestroyWindow(handle_);
  }
}

Window* Window::of(HWND handle) {
  if (handle == nullptr || GetWindowThreadProcessId(handle, nullptr) != GetCurrentThreadId()) {
    return nullptr;
  }
  return reinterpret_cast<Window*>(SendMessageW(handle, objectMessage(), 0, 0));
}

Window* Window::find(HWND above, const std::string& controlName) {
  Window* top = of(above);
  Window* found = nullptr;
  if (top != nullptr) {
    top->visit([&](Window& window) {
      if (found == nullptr && window.control() != nullptr &&
          window.control()->name() == controlName) {
        found = &window;
      }
    });
  }
  if (found != nullptr && !found->isMade()) {
    top->makeWindow();
  }
  return found;
}

void Window::setControl(const controls::Control& control) {
  control_ = &control;
  if (isSettled()) {
    showControlName();
  }
}

void Window::showControlName() {
  if (control_ == nullptr) {
    return;
  }
  const ATOM name = GlobalAddAtomW(platform::wideText(control_->name()).c_str());
  SetPropW(handle_, kControlName, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(name)));
}

void Window::setNumber(int number) {
  number_ = number;
  if (isMade()) {
    SetWindowLongPtrW(handle_, GWLP_ID, number);
  }
}

void Window::place(const Area& area) {
  if (area == place_) {
    return;
  }
  place_ = area;
  if (isMade()) {
    SetWindowPos(handle_, nullptr, area.left, area.top, area.width, area.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

DWORD Window::style() const {
  return isMade() ? static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_STYLE)) : make_.style;
}

void Window::setStyle(DWORD bits, bool on) {
  const DWORD style = on ? this->style() | bits : this->style() & ~bits;
  if (isMade()) {
    SetWindowLongPtrW(handle_, GWL_STYLE, static_cast<LONG_PTR>(style));
  } else {
    make_.style = style;
  }
}

void Window::setShown(bool shown) {
  if (shown != isShown()) {
    if (!shown) {
      passKeysOn();
    }
    appear(shown);
    askForLayout();
  }
}

void Window::appear(bool shown) {
  if (shown == isShown()) {
    return;
  }
  if (isMade()) {
    ShowWindow(handle_, shown ? SW_SHOWNA : SW_HIDE);
  } else {
    setStyle(WS_VISIBLE, shown);
  }
}

void Window::setUsable(bool usable) {
  if (usable == isUsable()) {
    return;
  }
  if (!usable) {
    passKeysOn();
  }
  if (isMade()) {
    EnableWindow(handle_, usable ? TRUE : FALSE);
  } else {
    setStyle(WS_DISABLED, !usable);
  }
}

// The system leaves the keys with a window that cannot be used any more, where they are lost.
void Window::passKeysOn() {
  if (isMade() && GetFocus() == handle_ && IsWindowVisible(handle_) != FALSE) {
    const HWND root = GetAncestor(handle_, GA_ROOT);
    const HWND next = GetNextDlgTabItem(root, handle_, FALSE);
    SetFocus(next == handle_ ? root : next);
  }
}

void Window::askForLayout() {
  if (above_ != nullptr) {
    above_->askForLayout();
  }
}

void Window::setTip(HWND tool, const std::wstring& text) {
  if (above_ != nullptr) {
    above_->setTip(tool, text);
  }
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
    if (isMade()) {
      SetWindowTextW(handle_, caption.c_str());
    }
  }
}

void Window::setFont(Font font) {
  font_ = font;
  if (isMade()) {
    SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(look_.font(font)), TRUE);
  }
}

void Window::onLookChanged() { setFont(font_); }

LRESULT Window::onMessage(UINT message, WPARAM word, LPARAM value) {
  if (message == WM_SETFOCUS) {
    for (Window* window = above_; window != nullptr; window = window->above_) {
      window->onFocusBelow(handle_);
    }
  }
  return CallWindowProcW(ofClass_, handle_, message, word, value);
}

LRESULT CALLBACK Window::deliver(HWND handle, UINT message, WPARAM word, LPARAM value) {
  auto& window = *reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (message == WM_NCDESTROY) {
    GlobalDeleteAtom(
        static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(RemovePropW(handle, kControlName))));
    window.handle_ = nullptr;
    return CallWindowProcW(window.ofClass_, handle, message, word, value);
  }
  if (message == objectMessage()) {
    return reinterpret_cast<LRESULT>(&window);
  }
  return window.onMessage(message, word, value);
}

}  // namespace zelvane::win32
