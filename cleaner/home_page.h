// Keeps the browser's start page what the user chose: once by the button, and again at every start.
#pragma once

#include "cleaner/cleaner_page.h"
#include "core/settings_store.h"

namespace zelvane::platform {
class Registry;
}

namespace zelvane::cleaner {

// The address is taken as typed. Neither a missing browser key nor a store that refuses is
// reported; the box keeps what the user typed.
class HomePage {
 public:
  HomePage(CleanerPage& page, core::SettingsStore& settings, platform::Registry& registry);

  // Shows the stored home page and writes it to the browser, so that a page that a web site slipped
  // in is gone after the next start. Whether the option against improper changes is ticked plays no
  // part in it.
  void reimpose();

  void cmdHomePage_Click();

 private:
  CleanerPage& page_;
  core::SettingsStore& settings_;
  platform::Registry& registry_;
};

}  // namespace zelvane::cleaner
