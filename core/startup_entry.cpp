#include "core/startup_entry.h"

#include <string>

#include "core/registry_routines.h"
#include "platform/identity.h"
#include "platform/registry.h"

namespace zelvane::core::Registry {

using Port = platform::Registry;

void SetRunAtStartup(Port& registry, const platform::Identity& identity, bool run) {
  const Port::Opened list = registry.open(Port::Root::currentUser, kRunKey);
  if (list.result != Port::Result::success) {
    return;
  }
  const std::string& name = identity.version().title;
  if (run) {
    SetValueEx(
        registry, list.key, name, Port::Type::string,
        identity.programFolder() + identity.separator() + identity.executableName() + ".exe");
  } else {
    registry.deleteValue(list.key, name);
  }
  registry.close(list.key);
}

}  // namespace zelvane::core::Registry
