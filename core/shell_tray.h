// The main window's icon in the notification area.
#pragma once

#include <cstdint>
#include <string>

#include "platform/notification_record.h"

namespace zelvane::controls {
class Form;
}

namespace zelvane::platform {
class Tray;
}

namespace zelvane::core {

// The program has one icon for each window, so that all have the same identifier.
inline constexpr std::uint32_t kTrayIconIdentifier = 1;

// Callback message, picture and tip of a record are to be heeded.
inline constexpr std::uint32_t kWholeRecord = 7;

namespace ShellTray {

// Shows the window's icon with that tip. Where it is there already, it stays as it is.
void ShowIcon(platform::Tray& tray, const controls::Form& window, const std::string& tip);

// Takes it away; where it is not there, nothing happens.
void RemoveIcon(platform::Tray& tray, const controls::Form& window);

// A record from its parts. The tip is followed by one zero, and both are cut at 64 bytes: a tip
// that fills them has no zero.
platform::NotificationRecord record(std::uint32_t window, std::uint32_t identifier,
                                    std::uint32_t flags, std::uint32_t callbackMessage,
                                    std::uint32_t icon, const std::string& tip);

}  // namespace ShellTray
}  // namespace zelvane::core
