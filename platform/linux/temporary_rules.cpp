#include "platform/linux/temporary_rules.h"

#include <algorithm>
#include <array>

#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {

std::span<const ServiceName> serviceNames() {
  using enum EntryKind;
  static constexpr auto kTable = std::to_array<ServiceName>({
      {".X11-unix", folder, "displays"},
      {".X*-lock", file, "displays"},
      {".ICE-unix", folder, "sessions"},
      {".xfsm-ICE-*", file, "sessions"},
      {".XIM-unix", folder, "input methods"},
      {".font-unix", folder, "font servers"},
      {"systemd-private-*", folder, "services of the system"},
      {"snap-private-tmp", folder, "snaps"},
      {"snap.*", folder, "snaps"},
      {".mount_*", folder, "programs that are images"},
      {"ssh-*", folder, "key agents"},
      {"gpg-*", folder, "key agents"},
      {"keyring-*", folder, "key agents"},
      {"dbus-*", folder, "buses"},
      {"pulse-*", folder, "sound servers"},
      {"tmux-*", folder, "terminals"},
      {"runtime-*", folder, "run-time folders"},
      {"xdg-runtime-*", folder, "run-time folders"},
      {"kde-*", folder, "run-time folders"},
      {"ksocket-*", folder, "run-time folders"},
  });
  return kTable;
}

bool isOfAService(std::string_view name, EntryKind kind) {
  return std::ranges::any_of(serviceNames(), [&](const ServiceName& row) {
    return row.kind == kind && partFor(row.pattern, name);
  });
}

}  // namespace zelvane::platform
