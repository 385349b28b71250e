// What Windows says about itself and its network.
#pragma once

#include "platform/machine.h"

namespace zelvane::platform {

// Numbers are the system's true ones: asked in the usual way it would tell a program those of the
// system that the program's manifest names.
class WindowsMachine : public Machine {
 public:
  std::string computerName() const override;
  std::variant<SystemVersion, std::string> system() const override;
  std::optional<std::string> localAddress() const override;
};

}  // namespace zelvane::platform
