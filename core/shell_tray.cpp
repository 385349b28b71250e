#include "core/shell_tray.h"

#include <algorithm>

#include "core/controls/form.h"
#include "platform/tray.h"

namespace zelvane::core::ShellTray {

using platform::NotificationRecord;

void ShowIcon(platform::Tray& tray, const controls::Form& window, const std::string& tip) {
  tray.add(record(tray.windowHandle(window.name()), kTrayIconIdentifier, kWholeRecord,
                  platform::Tray::kRightReleased, tray.iconHandle(window.name()), tip));
}

// Of what it takes to remove an icon, the callback message is no part; it is 1 and means nothing.
void RemoveIcon(platform::Tray& tray, const controls::Form& window) {
  constexpr std::uint32_t kNoMessage = 1;
  tray.remove(record(tray.windowHandle(window.name()), kTrayIconIdentifier, kWholeRecord,
                     kNoMessage, tray.iconHandle(window.name()), ""));
}

NotificationRecord record(std::uint32_t window, std::uint32_t identifier, std::uint32_t flags,
                          std::uint32_t callbackMessage, std::uint32_t icon,
                          const std::string& tip) {
  NotificationRecord record;
  record.size = sizeof record;
  record.window = window;
  record.identifier = identifier;
  record.flags = flags;
  record.callbackMessage = callbackMessage;
  record.icon = icon;
  std::ranges::copy_n(tip.begin(),
                      static_cast<std::ptrdiff_t>(std::min(tip.size(), record.tip.size())),
                      record.tip.begin());
  return record;
}

}  // namespace zelvane::core::ShellTray
