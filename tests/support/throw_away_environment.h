// The environment of a user whose home is a throw-away folder.
#pragma once

#include "platform/linux/environment.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// Of these folders only the temporary one and the run-time one exist at first.
inline platform::Environment environmentIn(const ThrowAwayFolder& folder) {
  namespace fs = std::filesystem;
  fs::create_directory(folder.path() / "tmp");
  fs::create_directory(folder.path() / "run");
  fs::permissions(folder.path() / "run", fs::perms::owner_all);
  return {.home = folder / "home",
          .configHome = folder / "home/.config",
          .dataHome = folder / "home/.local/share",
          .cacheHome = folder / "home/.cache",
          .runtimeDir = folder / "run",
          .tmpDir = folder / "tmp"};
}

}  // namespace zelvane::test
