// What of a profile's service workers belongs to extensions.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// Both give names in `folder` that are not to be erased, and throw where nobody can say which.

// Of "Service Worker/CacheStorage": a folder for each origin, which its "index.txt" names.
std::vector<std::string> cachesOfExtensions(const std::string& folder,
                                            const BrowserDesktop& desktop, const Files& files);

// Of "Service Worker/ScriptCache", whose entries (net/disk_cache/simple of Chromium) are known by
// numbers: the database beside it tells which number is whose script.
//
//     0   mark, 8 bytes       12  length of the key, 4 bytes, little-endian
//     8   version, 4 bytes    24  the key: the number, in digits
std::vector<std::string> scriptsOfExtensions(const std::string& folder,
                                             const BrowserDesktop& desktop, const Files& files);

}  // namespace zelvane::platform
