// What a Linux system says about itself and its network.
#pragma once

#include <string>

#include "platform/machine.h"

namespace zelvane::platform {

// Everything is read anew each time: the kernel's host name and network interfaces, the release's
// own name in /etc/os-release or /usr/lib/os-release, the routes in /proc/net/route. Nobody is sent
// anything.
class LinuxMachine : public Machine {
 public:
  // Those files are looked for below `root`; tests have one of their own.
  explicit LinuxMachine(std::string root = "");

  std::string computerName() const override;
  std::variant<SystemVersion, std::string> system() const override;
  std::optional<std::string> localAddress() const override;

 private:
  std::optional<std::string> content(const std::string& path) const;

  std::string root_;
};

}  // namespace zelvane::platform
