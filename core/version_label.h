// The program's name and version as its users see them.
#pragma once

#include <string>

namespace zelvane::platform {
struct VersionRecord;
}

namespace zelvane::core {

// Product name, " v", major, ".", minor: "Zelvane v1.0". The window's caption, the tray menu's
// first item, the tray icon's tool tip and the message of a second start all say exactly this.
std::string versionLabel(const platform::VersionRecord& version);

}  // namespace zelvane::core
