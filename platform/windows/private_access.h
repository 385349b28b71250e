// Who may use what the program makes for its user alone.
#pragma once

#include <memory>

#include <windows.h>

namespace zelvane::platform {

struct FreeLocal {
  void operator()(void* memory) const { LocalFree(memory); }
};

// For a new file or folder: the user of this process may do everything, nobody else anything, and
// nothing is inherited from the folder above.
using Access = std::unique_ptr<SECURITY_DESCRIPTOR, FreeLocal>;
Access privateAccess();

}  // namespace zelvane::platform
