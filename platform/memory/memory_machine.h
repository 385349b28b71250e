// A machine of any name, system and address.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "platform/machine.h"

namespace zelvane::platform {

class MemoryMachine : public Machine {
 public:
  // What the port answers; a test changes what it cares about.
  struct Facts {
    std::string computerName = "reading-room";
    std::variant<SystemVersion, std::string> system = "Penguin Desktop 7";
    std::optional<std::string> localAddress = "192.0.2.17";
  };
  Facts facts;

  std::string computerName() const override { return facts.computerName; }
  std::variant<SystemVersion, std::string> system() const override { return facts.system; }
  std::optional<std::string> localAddress() const override { return facts.localAddress; }
};

}  // namespace zelvane::platform
