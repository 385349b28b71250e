// What Zelvane says of itself on every desktop.
#pragma once

#include "platform/identity.h"

namespace zelvane::platform {

// The version numbers come from the file VERSION in the project's root.
VersionRecord product();

}  // namespace zelvane::platform
