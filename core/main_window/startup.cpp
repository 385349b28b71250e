#include "core/main_window/startup.h"

#include <optional>

#include "core/main_window/frm_main.h"
#include "core/version_label.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/identity.h"
#include "platform/process_end.h"
#include "platform/profile_file.h"
#include "platform/registry.h"
#include "platform/settings_backend.h"
#include "platform/single_instance.h"

namespace zelvane::main_window::GenFunc {

namespace {

void endSecondInstance(const platform::Desktop& desktop) {
  const platform::VersionRecord& version = desktop.identity.version();
  desktop.dialogs.show({.text = core::versionLabel(version) + " already running.",
                        .title = version.productName,
                        .icon = platform::MessageIcon::information});
  desktop.process.end();
}

void tell(const platform::Desktop& desktop, const std::optional<std::string>& complaint) {
  if (complaint) {
    desktop.dialogs.show({.text = *complaint,
                          .title = desktop.identity.version().title,
                          .icon = platform::MessageIcon::exclamation});
  }
}

void tellOfDamagedStores(const platform::Desktop& desktop) {
  tell(desktop, desktop.settings.check());
  tell(desktop, desktop.registry.check());
}

// An entry that is there is somebody's choice, also an empty one, and is left alone.
void writeMissingProfileEntry(const platform::Desktop& desktop) {
  constexpr auto absent = "NotFound";
  if (desktop.winIni.find("Extensions", "DVK").value_or(absent) == absent) {
    desktop.winIni.write("Extensions", "DVK", containerProfileEntry(desktop.identity));
  }
}

}  // namespace

void Main(const platform::Desktop& desktop, frmMain& window) {
  if (!desktop.instance.claim()) {
    endSecondInstance(desktop);
  }
  tellOfDamagedStores(desktop);
  writeMissingProfileEntry(desktop);
  window.show();
}

std::string containerProfileEntry(const platform::Identity& identity) {
  return identity.programFolder() + "Zelvane.exe ^.DVK";
}

}  // namespace zelvane::main_window::GenFunc
