#include "ui/win32/win32_tray.h"

#include <algorithm>

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/picture_window.h"
#include "ui/win32/mirror/popup_menu.h"

namespace zelvane::win32 {

namespace {

using platform::NotificationRecord;

// To the window of the icon: what the mouse does with it.
constexpr UINT kIconMessage = WM_APP + 2;

// Handles of windows and icons are as wide as the machine's addresses and use 32 bits of that.
template <typename Handle>
std::uint32_t narrow(Handle handle) {
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(handle));
}

template <typename Handle>
Handle widen(std::uint32_t handle) {
  return reinterpret_cast<Handle>(static_cast<std::intptr_t>(static_cast<std::int32_t>(handle)));
}

NOTIFYICONDATAW systemsOwn(const NotificationRecord& record) {
  NOTIFYICONDATAW icon{};
  icon.cbSize = sizeof icon;
  icon.hWnd = widen<HWND>(record.window);
  icon.uID = record.identifier;
  icon.uFlags = record.flags;
  icon.uCallbackMessage = kIconMessage;
  icon.hIcon = widen<HICON>(record.icon);
  std::ranges::copy(platform::wideText(tipText(record)), icon.szTip);
  return icon;
}

bool tellShell(DWORD message, NOTIFYICONDATAW& icon) {
  return Shell_NotifyIconW(message, &icon) != FALSE;
}

}  // namespace

Win32Tray::Win32Tray() : Win32Tray(tellShell) {}

Win32Tray::~Win32Tray() {
  if (record_) {
    remove(*record_);
  }
  for (const auto& [resource, icon] : icons_) {
    DestroyIcon(icon);
  }
}

// A program with more rights than the taskbar hears from it only what it says that it will.
void Win32Tray::attach(FormWindow& window, controls::Menu& menu) {
  window_ = &window;
  menu_ = &menu;
  const UINT taskbarCreated = RegisterWindowMessageW(L"TaskbarCreated");
  ChangeWindowMessageFilterEx(window.handle(), taskbarCreated, MSGFLT_ALLOW, nullptr);
  window.answer(taskbarCreated, [this](WPARAM, LPARAM) { showAnew(); });
  window.answer(kIconMessage, [this](WPARAM, LPARAM value) { used_(static_cast<int>(value)); });
}

std::uint32_t Win32Tray::windowHandle(const std::string& formName) const {
  const bool isIt = window_ != nullptr && window_->control()->name() == formName;
  return isIt ? narrow(window_->handle()) : 0;
}

std::uint32_t Win32Tray::iconHandle(const std::string& controlName) const {
  if (windowHandle(controlName) != 0) {
    return narrow(icon(L"application"));
  }
  const auto* picture =
      window_ == nullptr
          ? nullptr
          : dynamic_cast<const PictureWindow*>(Window::find(window_->handle(), controlName));
  return picture == nullptr ? 0 : narrow(icon(picture->resource()));
}

HICON Win32Tray::icon(const wchar_t* resource) const {
  HICON& icon = icons_[resource];
  if (icon == nullptr) {
    icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), resource, IMAGE_ICON,
                                         GetSystemMetrics(SM_CXSMICON),
                                         GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR));
  }
  return icon;
}

// Where there is one, another try: a taskbar that is busy, as at the start of a session, refuses.
bool Win32Tray::add(const NotificationRecord& record) {
  const bool isNew = !record_;
  if (isNew) {
    record_ = record;
  }
  if (!isShown()) {
    NOTIFYICONDATAW icon = systemsOwn(*record_);
    shown_ = notify_(NIM_ADD, icon);
  }
  return isNew;
}

bool Win32Tray::modify(const NotificationRecord& record) {
  if (!record_ || !areOfOneIcon(*record_, record)) {
    return false;
  }
  record_ = record;
  NOTIFYICONDATAW icon = systemsOwn(*record_);
  notify_(NIM_MODIFY, icon);
  return true;
}

bool Win32Tray::remove(const NotificationRecord& record) {
  if (!record_ || !areOfOneIcon(*record_, record)) {
    return false;
  }
  NOTIFYICONDATAW icon = systemsOwn(*record_);
  notify_(NIM_DELETE, icon);
  record_.reset();
  shown_ = false;
  return true;
}

// Only an icon that is there can be modified, which changes nothing here.
bool Win32Tray::isShown() const {
  if (!record_ || !shown_) {
    return false;
  }
  NOTIFYICONDATAW icon = systemsOwn(*record_);
  return notify_(NIM_MODIFY, icon);
}

// A taskbar says that it is new also when the screen has changed, and has the icon then still.
void Win32Tray::showAnew() {
  if (!record_ || isShown()) {
    return;
  }
  const bool wasShown = shown_;
  NOTIFYICONDATAW icon = systemsOwn(*record_);
  shown_ = notify_(NIM_ADD, icon);
  if (wasShown && !shown_) {
    lost_();
  }
}

void Win32Tray::showMenu(const std::string& menuName) {
  if (window_ != nullptr && menu_->name() == menuName) {
    PopupMenu(*menu_).open(window_->handle());
  }
}

}  // namespace zelvane::win32
