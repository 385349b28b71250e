// Where the user's things are, as the process's environment says.
#pragma once

#include <string>

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

  // The real one. Tests build their own, below a throw-away folder.
  static Environment ofProcess();
};

}  // namespace zelvane::platform
