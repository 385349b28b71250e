// A desktop on which the program has run before and everything was chosen otherwise than by
// default.
#pragma once

#include "core/main_window/startup.h"
#include "tests/unit/faults/script.h"

namespace zelvane::faults {

void settle(platform::MemoryDesktop& desktop);

// A window that was loaded without a fault on such a desktop.
class LoadedScript : public Script {
 protected:
  LoadedScript() {
    settle(desktop.memory);
    main_window::GenFunc::Main(desktop.ports(), window);
    begin();
  }
};

}  // namespace zelvane::faults
