// The program's icon in the notification area of a Windows desktop.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include <windows.h>
#include <shellapi.h>

#include "core/controls/menu.h"
#include "platform/tray.h"
#include "ui/win32/mirror/form_window.h"

namespace zelvane::win32 {

// The system is told in its own structure, which is wider than the record, and sends a message of
// its own to the window: that of the record, 517, is also what the window gets when the right
// button is released over it. A taskbar that starts anew says so, and gets the icon once more.
class Win32Tray : public platform::Tray {
 public:
  // Adds, modifies or deletes an icon (NIM_ADD, ...); false where it could not.
  using Notify = std::function<bool(DWORD message, NOTIFYICONDATAW& icon)>;

  Win32Tray();
  explicit Win32Tray(Notify notify) : notify_(std::move(notify)) {}
  ~Win32Tray() override;

  // From then on the icon belongs to this window, and `menu` is one that can be shown. Both outlive
  // this object's use.
  void attach(FormWindow& window, controls::Menu& menu);

  std::uint32_t windowHandle(const std::string& formName) const override;
  std::uint32_t iconHandle(const std::string& controlName) const override;
  bool add(const platform::NotificationRecord& record) override;
  bool modify(const platform::NotificationRecord& record) override;
  bool remove(const platform::NotificationRecord& record) override;
  bool isShown() const override;
  void showMenu(const std::string& menuName) override;
  void whenUsed(std::function<void(int mouseMessage)> used) override { used_ = std::move(used); }
  void whenLost(std::function<void()> lost) override { lost_ = std::move(lost); }

 private:
  void showAnew();
  HICON icon(const wchar_t* resource) const;

  Notify notify_;
  FormWindow* window_ = nullptr;
  controls::Menu* menu_ = nullptr;
  std::function<void(int)> used_ = [](int) {};
  std::function<void()> lost_ = [] {};
  std::optional<platform::NotificationRecord> record_;  // of the icon that there is
  bool shown_ = false;                                  // when the system was told last
  mutable std::map<std::wstring, HICON> icons_;         // by their resources, once loaded
};

}  // namespace zelvane::win32
