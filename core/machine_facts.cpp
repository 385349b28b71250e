#include "core/machine_facts.h"

#include <variant>

#include "platform/machine.h"

namespace zelvane::core {

namespace {

enum Kind { consumerLine = 1, ntLine = 2 };

std::string nameOfConsumerLine(int minor) {
  switch (minor) {
    case 0:
      return "Windows 95";
    case 10:
      return "Windows 98";
    default:
      return "";
  }
}

std::string nameOfNtLine(int major) {
  switch (major) {
    case 3:
      return "Windows NT 3.51";
    case 4:
      return "Windows NT 4.0";
    case 5:
      return "Windows 2000";
    case 6:
      return "Windows XP";
    default:
      return "";
  }
}

}  // namespace

std::string userLine(const platform::Machine& machine) {
  const std::string name = machine.computerName();
  return "User " + name.substr(0, name.find('\0'));
}

std::string OS::GetOSName(const platform::Machine& machine) {
  const auto system = machine.system();
  if (const auto* release = std::get_if<std::string>(&system)) {
    return *release;
  }
  const auto& version = std::get<platform::SystemVersion>(system);
  switch (version.kind) {
    case consumerLine:
      return nameOfConsumerLine(version.minor);
    case ntLine:
      return nameOfNtLine(version.major);
    default:
      return "Failed";
  }
}

}  // namespace zelvane::core
