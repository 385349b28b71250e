// What the user has run from the desktop's "Run" dialog.
#pragma once

#include "platform/files.h"
#include "platform/linux/environment.h"

namespace zelvane::platform {

// Each desktop keeps its own list:
//
//     GNOME, Cinnamon, MATE   the desktop's settings (dconf), which `gsettings` resets
//     XFCE                    $XDG_CACHE_HOME/xfce4/xfce4-appfinder/history
//     KDE                     $XDG_DATA_HOME/krunnerstaterc, the group
//     [PlasmaRunnerManager][History];
//                             in former days $XDG_CONFIG_HOME/krunnerrc, "history" in [General]
class RunHistory {
 public:
  // `files` is borrowed.
  RunHistory(const Environment& environment, Files& files);

  // What cannot be erased stays, and the next list has its turn.
  void erase() const;

 private:
  Environment environment_;
  Files& files_;
};

}  // namespace zelvane::platform
