// The rules of each family of browsers.
#pragma once

#include "platform/shared/browsers/rules.h"

namespace zelvane::platform {

const FamilyRules& firefoxRules();   // Firefox, LibreWolf
const FamilyRules& chromiumRules();  // Chromium, Chrome, Brave, Edge, Vivaldi, Opera

}  // namespace zelvane::platform
