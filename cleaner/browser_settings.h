// The browser's own settings that the cleaner reads and forces. They are registry values below
// HKEY_CURRENT_USER; a key that is missing is never created, and then nothing is written. Which
// browsers follow them is the desktop's affair.
#pragma once

#include <optional>
#include <string>

namespace zelvane::platform {
class Registry;
}

namespace zelvane::cleaner {

void writeStartPage(platform::Registry& registry, const std::string& address);

// "yes" while the browser suggests addresses as one types, "no" otherwise.
std::optional<std::string> readAutoSuggest(platform::Registry& registry);
void writeAutoSuggest(platform::Registry& registry, const std::string& answer);

void disableScriptDebugger(platform::Registry& registry);

// Writes a value whose name ends in a stray "X". It has been so from the first version and stays,
// because what is already stored on users' machines has that name.
void disableScriptErrorNotification(platform::Registry& registry);

}  // namespace zelvane::cleaner
