// A browser's file of JSON.
#pragma once

#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "platform/files.h"
#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// Nothing where there is no such file. Throws for a link, for more than 64 MiB, for what is no
// JSON, and for what is nested deeper than any browser's.
std::optional<nlohmann::json> readJson(const std::string& path, const BrowserDesktop& desktop,
                                       const Files& files);

}  // namespace zelvane::platform
