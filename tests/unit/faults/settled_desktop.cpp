#include "tests/unit/faults/settled_desktop.h"

namespace zelvane::faults {

using Root = platform::Registry::Root;

void settle(platform::MemoryDesktop& desktop) {
  constexpr int kChosen[] = {0, 0, 0, 0, 1, 0, 1, 0, 1, 0, 0, 0, 1, 1, 1, 1};
  for (std::size_t index = 0; index < std::size(kChosen); ++index) {
    desktop.settings.put(desktop.identity.programFolder(), "Settings",
                         "Index" + std::to_string(index), std::to_string(kChosen[index]));
  }
  desktop.settings.put("Options", "StartUp", "1");
  desktop.settings.put("HomePage", "StartPage", "https://mine.example/");
  desktop.settings.put("PopupKiller", "IsActive", "0");
  desktop.settings.put("Schedule", "RunOn", "9");
  desktop.settings.put("Schedule", "Date", "1970-01-03");
  desktop.settings.put("Schedule", "Time", "08:30:00");
  desktop.settings.put("Schedule", "RunAfter", "5");
  desktop.settings.put("Schedule", "LastRunTime", "09:05:07");
  desktop.registry.put(Root::currentUser, kBrowserMain, "Start Page", "https://theirs.example/");
  desktop.registry.put(Root::currentUser, kAutoComplete, "AutoSuggest", "yes");
  desktop.registry.put(Root::currentUser, kRun, "Zelvane", "/opt/zelvane/zelvane.exe");
  desktop.winIni.write("Extensions", "DVK", "somebody else's");
}

}  // namespace zelvane::faults
