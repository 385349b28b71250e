// Where what is open really lies.
#pragma once

#include <optional>
#include <string>

#include <windows.h>

namespace zelvane::platform {

// Its path without any link in it, as it is stored, "\\?\C:\folder". Nothing where the system
// cannot tell, or where no letter leads to its volume.
std::optional<std::wstring> finalPath(HANDLE opened);

}  // namespace zelvane::platform
