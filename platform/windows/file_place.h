// A path as what leads to a file: the folder, opened, and the name in it.
#pragma once

#include <string>

#include "platform/windows/handle.h"

namespace zelvane::platform {

struct FilePlace {
  Handle folder;
  std::wstring name;
};

// Whether anything has that name does not matter. Throws pathNotFound where the folder is missing,
// and accessError where the last part of the path is no single name.
FilePlace placeOf(const std::string& path);

}  // namespace zelvane::platform
