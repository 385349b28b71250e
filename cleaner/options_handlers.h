// What happens when the cleaning options are loaded, clicked, or set to their defaults.
#pragma once

#include <cstddef>
#include <span>

#include "cleaner/cleaner_page.h"
#include "core/settings_store.h"

namespace zelvane::platform {
class Registry;
}

namespace zelvane::cleaner {

// A click stores the option at once; there is no separate save and no cancel. What cannot be stored
// or read is never reported: the box keeps showing what the user clicked.
class OptionsHandlers {
 public:
  // `saving` is the window's: while it is false, clicks are not stored.
  OptionsHandlers(CleanerPage& page, core::SettingsStore& settings, platform::Registry& registry,
                  const bool& saving);

  // Sets each box to its stored state. Where nothing is stored, or what is stored is no state, the
  // box stays as it is.
  void loadOptions();

  // Ticks `chkWebAddress` unless the browser is set to suggest addresses.
  void loadWebAddress();

  void chkSettings_Click(std::size_t index);
  void cmdDefaultSettings_Click();
  void cmdDefaultSettings1_Click();
  void chkWebAddress_Click();

 private:
  void loadOption(std::size_t index);
  void setDefaults(std::span<const DefaultState> defaults);

  CleanerPage& page_;
  core::SettingsStore& settings_;
  platform::Registry& registry_;
  const bool& saving_;
};

}  // namespace zelvane::cleaner
