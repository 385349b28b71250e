// The menu of the icon in the notification area.
#pragma once

#include "core/controls/menu.h"

namespace zelvane::main_window {

struct TrayMenu : controls::Page {
  // The version label, once the window is loaded.
  controls::MenuItem mnuShow{*this, "mnuShow", ""};
  controls::MenuItem mnuPoupKiller{*this, "mnuPoupKiller", "Activate Popup Killer",
                                   controls::MenuItem::Kind::markable};
  controls::MenuItem mnuAbout{*this, "mnuAbout", "About"};
  controls::MenuItem mnuS1{*this, "mnuS1", "-"};
  controls::MenuItem mnuUnloadQuorvex{*this, "mnuUnloadQuorvex", "Exit"};
  controls::Menu mnuQuorvex{*this,
                            "mnuQuorvex",
                            "Quorvex Popup",
                            {&mnuShow, &mnuPoupKiller, &mnuAbout, &mnuS1, &mnuUnloadQuorvex}};
};

}  // namespace zelvane::main_window
