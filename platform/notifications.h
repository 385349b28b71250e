// Short messages beside whatever the user is doing.
#pragma once

#include <string>

#include "platform/port.h"

namespace zelvane::platform {

class Notifications : public Port {
 public:
  // Shows plain text; lines are parted by "\n". Neither takes the focus nor waits for anyone. A
  // desktop without a place for such messages shows nothing.
  virtual void show(const std::string& title, const std::string& text) = 0;
};

}  // namespace zelvane::platform
