// Where the user's things are, as the process's environment says.
#pragma once

#include <string>
#include <vector>

namespace zelvane::platform {

// All paths are absolute and without a closing separator (but "/"). A variable that is not set,
// empty or a relative path, which would be another place in each program, gives way to the usual
// place. The folders need not exist.
struct Environment {
  std::string home;        // $HOME, or what the user database says
  std::string configHome;  // $XDG_CONFIG_HOME, or ~/.config
  std::string dataHome;    // $XDG_DATA_HOME, or ~/.local/share
  std::string cacheHome;   // $XDG_CACHE_HOME, or ~/.cache
  std::string runtimeDir;  // $XDG_RUNTIME_DIR, or where systemd puts it; empty if there is none
  std::string tmpDir;      // $TMPDIR, or /tmp

  // Where the system's own are, the most important one first; relative paths are left out.
  std::vector<std::string> configDirs = {};   // $XDG_CONFIG_DIRS, or /etc/xdg
  std::vector<std::string> dataDirs = {};     // $XDG_DATA_DIRS, or /usr/local/share and /usr/share
  std::vector<std::string> programDirs = {};  // $PATH, or the system's usual one

  // The names of the running desktop in lower case, $XDG_CURRENT_DESKTOP: "ubuntu", "gnome".
  std::vector<std::string> desktops = {};

  // The real one. Tests build their own, below a throw-away folder.
  static Environment ofProcess();
};

}  // namespace zelvane::platform
