// Which program of the desktop opens files of a type.
#pragma once

#include <optional>
#include <string>

#include "platform/linux/desktop_entry.h"
#include "platform/linux/environment.h"

namespace zelvane::platform {

// As the user chose, or the desktop, or the system; where none of them did, any program that says
// that it opens the type ("text/html"), unless an association was removed. The lists and their
// order are those of freedesktop.org's "Association between MIME types and applications", 1.0.1.
std::optional<DesktopEntry> programForType(const std::string& type, const Environment& environment);

}  // namespace zelvane::platform
