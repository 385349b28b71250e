// The values of the registry that stand for settings of today's browsers.
#pragma once

#include <vector>

#include "platform/shared/browsers/browser_settings.h"
#include "platform/shared/live_registry.h"

namespace zelvane::platform {

//     Software\Microsoft\Internet Explorer\Main                        "Start Page"
//     Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete  "AutoSuggest"  "yes", "no"
//
// The script settings beside the first have no like in today's browsers and are values as any.
// `settings` is borrowed; `answers` is for the second.
std::vector<LiveRegistry::LiveValue> liveBrowserValues(const BrowserSettings& settings,
                                                       LiveRegistry::Answers answers);

}  // namespace zelvane::platform
