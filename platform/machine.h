// What there is to say about the machine that the program runs on.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "platform/port.h"

namespace zelvane::platform {

// How systems of the Windows family number themselves. All zeros where the system does not tell.
struct SystemVersion {
  int kind = 0;                  // 1 the consumer line, 2 the NT line
  int major = 0;                 //
  int minor = 0;                 //
  int build = 0;                 //
  std::string servicePack = {};  // empty for none

  friend bool operator==(const SystemVersion&, const SystemVersion&) = default;
};

// It answers at once, and asks no other machine. What cannot be found out is no failure.
class Machine : public Port {
 public:
  // The name under which the network knows this computer; empty where it has none.
  virtual std::string computerName() const = 0;

  // Which system it is: its numbers where it is of that family, elsewhere the name that its release
  // gives itself, "Debian GNU/Linux 12 (bookworm)".
  virtual std::variant<SystemVersion, std::string> system() const = 0;

  // The IPv4 address, in dotted form, of the interface through which this computer reaches others
  // that are not in its own network; nothing where there is no such interface.
  virtual std::optional<std::string> localAddress() const = 0;
};

}  // namespace zelvane::platform
