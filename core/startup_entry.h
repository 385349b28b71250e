// The program's entry in the list of what the user's session starts.
#pragma once

namespace zelvane::platform {
class Identity;
class Registry;
}  // namespace zelvane::platform

namespace zelvane::core::Registry {

// The list is the key of the current user's that desktops of the Windows family read at logon:
inline constexpr auto kRunKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";

// Writes the entry, or deletes it. Its name is the program's title, its text the program's folder,
// a separator, the executable's name and ".exe", in no quotes whatever is in it; at the root of a
// drive two separators follow each other. Where the key cannot be opened nothing is done. What the
// registry answers is not looked at: the list then stays as it was.
void SetRunAtStartup(platform::Registry& registry, const platform::Identity& identity, bool run);

}  // namespace zelvane::core::Registry
