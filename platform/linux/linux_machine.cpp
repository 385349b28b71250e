#include "platform/linux/linux_machine.h"

#include <array>
#include <climits>
#include <memory>
#include <utility>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/os_release.h"
#include "platform/linux/route_table.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestFile = std::uint64_t{1} << 20U;

struct FreeAddresses {
  void operator()(ifaddrs* addresses) const { freeifaddrs(addresses); }
};
using Addresses = std::unique_ptr<ifaddrs, FreeAddresses>;

Addresses addressesOfThisComputer() {
  ifaddrs* first = nullptr;
  return Addresses(getifaddrs(&first) == 0 ? first : nullptr);
}

std::string dotted(const in_addr& address) {
  std::array<char, INET_ADDRSTRLEN> text{};
  return inet_ntop(AF_INET, &address, text.data(), text.size());
}

// The first one; the others of an interface are further names for it.
std::optional<std::string> addressOf(const std::string& interface) {
  const Addresses addresses = addressesOfThisComputer();
  for (const ifaddrs* one = addresses.get(); one != nullptr; one = one->ifa_next) {
    if (one->ifa_addr != nullptr && one->ifa_addr->sa_family == AF_INET &&
        interface == one->ifa_name) {
      return dotted(reinterpret_cast<const sockaddr_in*>(one->ifa_addr)->sin_addr);
    }
  }
  return std::nullopt;
}

}  // namespace

LinuxMachine::LinuxMachine(std::string root) : root_(std::move(root)) {}

std::optional<std::string> LinuxMachine::content(const std::string& path) const {
  try {
    return LinuxFiles().readWhole(root_ + path, kLongestFile);
  } catch (const Error&) {
    return std::nullopt;
  }
}

std::string LinuxMachine::computerName() const {
  std::array<char, HOST_NAME_MAX + 1> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::variant<SystemVersion, std::string> LinuxMachine::system() const {
  auto release = content("/etc/os-release");
  if (!release) release = content("/usr/lib/os-release");
  return releaseName(release.value_or(""));
}

std::optional<std::string> LinuxMachine::localAddress() const {
  const auto interface = defaultInterface(content("/proc/net/route").value_or(""));
  return interface ? addressOf(*interface) : std::nullopt;
}

}  // namespace zelvane::platform
