// An icon in the notification area for any window.
#pragma once

#include <string>

#include "platform/notification_record.h"

namespace zelvane::controls {
class Form;
class Picture;
}  // namespace zelvane::controls

namespace zelvane::platform {
class Tray;
}

namespace zelvane::core {

// It remembers what it shows. Of an icon that cannot be shown nothing is said.
class clsTray {
 public:
  // `tray` outlives it.
  explicit clsTray(platform::Tray& tray) : tray_(tray) {}

  // True while the icon is shown. As long as it is false, changes do nothing.
  bool bRunningInTray() const { return runningInTray_; }

  // Shows the window's icon, with its caption for a tip.
  void ShowIcon(const controls::Form& sysTrayForm);
  void RemoveIcon(const controls::Form& sysTrayForm);

  // Gives the icon that is shown another picture, or another tip.
  void ChangeIcon(const controls::Form& sysTrayForm, const controls::Picture& picNewIcon);
  void ChangeToolTip(const controls::Form& sysTrayForm, const std::string& strNewTip);

  void bRunningInTray(bool running) { runningInTray_ = running; }

 private:
  platform::Tray& tray_;
  platform::NotificationRecord record_;
  bool runningInTray_ = false;
};

}  // namespace zelvane::core
