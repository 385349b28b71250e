// Notifications that a test can read.
#pragma once

#include <string>
#include <vector>

#include "platform/notifications.h"

namespace zelvane::platform {

class MemoryNotifications : public Notifications {
 public:
  struct Shown {
    std::string title;
    std::string text;

    friend bool operator==(const Shown&, const Shown&) = default;
  };

  void show(const std::string& title, const std::string& text) override {
    shown.push_back({title, text});
  }

  std::vector<Shown> shown;  // in their order
};

}  // namespace zelvane::platform
