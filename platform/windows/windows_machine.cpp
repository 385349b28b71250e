#include "platform/windows/windows_machine.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>
#include <winternl.h>
#include <ws2tcpip.h>

#include "platform/windows/wide_text.h"

// The headers of the cross compiler leave it out.
extern "C" NTSTATUS NTAPI RtlGetVersion(RTL_OSVERSIONINFOW* version);

namespace zelvane::platform {
namespace {

constexpr DWORD kLongestName = 256;  // letters, with the zero at the end

// Calls `ask(buffer, size)`, which says how much room it needs, until it has enough. Empty where it
// fails; tables may grow between two calls, but not for ever.
template <typename Ask>
std::vector<std::byte> tableOf(const Ask& ask, ULONG tooSmall) {
  ULONG size = 16 * 1024;
  for (int attempt = 0; attempt < 5; ++attempt) {
    std::vector<std::byte> buffer(size);
    const ULONG result = ask(buffer.data(), &size);
    if (result == NO_ERROR) return buffer;
    if (result != tooSmall) break;
  }
  return {};
}

bool leadsEverywhere(const MIB_IPFORWARDROW& route) {
  return route.dwForwardDest == 0 && route.dwForwardMask == 0;
}

// The number of the interface that leads everywhere else; of several the one with the lowest
// metric.
std::optional<DWORD> defaultInterface() {
  const auto buffer = tableOf(
      [](std::byte* room, ULONG* size) {
        return GetIpForwardTable(reinterpret_cast<MIB_IPFORWARDTABLE*>(room), size, FALSE);
      },
      ERROR_INSUFFICIENT_BUFFER);
  if (buffer.empty()) return std::nullopt;
  const auto& table = *reinterpret_cast<const MIB_IPFORWARDTABLE*>(buffer.data());
  const MIB_IPFORWARDROW* best = nullptr;
  for (const auto* route = table.table; route != table.table + table.dwNumEntries; ++route) {
    if (leadsEverywhere(*route) &&
        (best == nullptr || route->dwForwardMetric1 < best->dwForwardMetric1)) {
      best = route;
    }
  }
  if (best == nullptr) return std::nullopt;
  return best->dwForwardIfIndex;
}

std::string dotted(const in_addr& address) {
  std::array<std::uint8_t, 4> parts{};
  static_assert(sizeof parts == sizeof address);
  std::memcpy(parts.data(), &address, sizeof parts);
  std::string text;
  for (const std::uint8_t part : parts) text += (text.empty() ? "" : ".") + std::to_string(part);
  return text;
}

std::optional<std::string> addressOf(DWORD interfaceNumber) {
  constexpr ULONG kOnlyAddresses = GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST |
                                   GAA_FLAG_SKIP_DNS_SERVER | GAA_FLAG_SKIP_FRIENDLY_NAME;
  const auto buffer = tableOf(
      [](std::byte* room, ULONG* size) {
        return GetAdaptersAddresses(AF_INET, kOnlyAddresses, nullptr,
                                    reinterpret_cast<IP_ADAPTER_ADDRESSES*>(room), size);
      },
      ERROR_BUFFER_OVERFLOW);
  if (buffer.empty()) return std::nullopt;
  for (const auto* adapter = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(buffer.data());
       adapter != nullptr; adapter = adapter->Next) {
    const auto* first = adapter->FirstUnicastAddress;
    if (adapter->IfIndex == interfaceNumber && first != nullptr) {
      return dotted(reinterpret_cast<const sockaddr_in*>(first->Address.lpSockaddr)->sin_addr);
    }
  }
  return std::nullopt;
}

}  // namespace

std::string WindowsMachine::computerName() const {
  std::array<wchar_t, kLongestName> name{};
  DWORD length = kLongestName;
  if (GetComputerNameW(name.data(), &length) == FALSE) return "";
  return plainText(name.data());
}

std::variant<SystemVersion, std::string> WindowsMachine::system() const {
  RTL_OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (RtlGetVersion(&version) != 0) return SystemVersion{};
  return SystemVersion{.kind = static_cast<int>(version.dwPlatformId),
                       .major = static_cast<int>(version.dwMajorVersion),
                       .minor = static_cast<int>(version.dwMinorVersion),
                       .build = static_cast<int>(version.dwBuildNumber),
                       .servicePack = plainText(version.szCSDVersion)};
}

std::optional<std::string> WindowsMachine::localAddress() const {
  const auto interfaceNumber = defaultInterface();
  return interfaceNumber ? addressOf(*interfaceNumber) : std::nullopt;
}

}  // namespace zelvane::platform
