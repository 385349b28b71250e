// Notifications by the desktop's own service.
#pragma once

#include "platform/notifications.h"

namespace zelvane::qt {

// Source: the Desktop Notifications Specification of freedesktop.org, version 1.2. Where nobody
// owns org.freedesktop.Notifications on the session's bus, nothing is shown.
class QtNotifications : public platform::Notifications {
 public:
  void show(const std::string& title, const std::string& text) override;
};

}  // namespace zelvane::qt
