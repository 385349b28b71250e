#include "core/cls_tray.h"

#include "core/controls/form.h"
#include "core/controls/picture.h"
#include "core/shell_tray.h"
#include "platform/tray.h"

namespace zelvane::core {

namespace {

constexpr std::uint32_t kMouseMoved = 512;

}  // namespace

void clsTray::ShowIcon(const controls::Form& sysTrayForm) {
  record_ =
      ShellTray::record(tray_.windowHandle(sysTrayForm.name()), kTrayIconIdentifier, kWholeRecord,
                        kMouseMoved, tray_.iconHandle(sysTrayForm.name()), sysTrayForm.caption());
  tray_.add(record_);
  runningInTray_ = true;
}

void clsTray::RemoveIcon(const controls::Form& sysTrayForm) {
  ShellTray::RemoveIcon(tray_, sysTrayForm);
  runningInTray_ = false;
}

void clsTray::ChangeIcon(const controls::Form& sysTrayForm, const controls::Picture& picNewIcon) {
  if (!runningInTray_) {
    return;
  }
  record_.window = tray_.windowHandle(sysTrayForm.name());
  record_.icon = tray_.iconHandle(picNewIcon.name());
  tray_.modify(record_);
}

void clsTray::ChangeToolTip(const controls::Form& sysTrayForm, const std::string& strNewTip) {
  if (!runningInTray_) {
    return;
  }
  record_ = ShellTray::record(tray_.windowHandle(sysTrayForm.name()), record_.identifier,
                              record_.flags, record_.callbackMessage, record_.icon, strNewTip);
  tray_.modify(record_);
}

}  // namespace zelvane::core
