// Whether the popup killer is on: one flag, shown on the page and in the tray's menu.
#pragma once

#include "core/settings_store.h"
#include "popupkiller/events.h"
#include "popupkiller/popup_page.h"

namespace zelvane::controls {
class MenuItem;
}

namespace zelvane::popupkiller {

// Box and menu item always show the same. A change holds at once and is stored at once; a store
// that refuses is not reported, because what the user sees holds all the same until the exit.
class PopupSwitch {
 public:
  // All are the window's.
  PopupSwitch(PopupPage& page, controls::MenuItem& mnuPoupKiller, Events& events,
              core::SettingsStore& settings);

  // Sets box and flag as stored: on, unless the store says "0". Where that changes the box, its
  // click is raised, which stores "1" at a first start and in place of any other text.
  void load();

  // Marks the menu item as the box is ticked.
  void markMenuItem();

  void chkPopupKillerActivate_Click();

  // Stores, sets the flag and then the box, whose click stores once more and moves the mark.
  void mnuPoupKiller_Click();

 private:
  void activate(bool active);

  PopupPage& page_;
  controls::MenuItem& mnuPoupKiller_;
  Events& events_;
  core::SettingsStore& settings_;
};

}  // namespace zelvane::popupkiller
