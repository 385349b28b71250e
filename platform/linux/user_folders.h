// The desktop's own list of the user's folders: user-dirs.dirs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelvane::platform {

// The path that `key` has in the text of such a list, without closing separators; nothing where it
// has none. A line is a shell assignment in one of two forms:
//
//     XDG_DOCUMENTS_DIR="$HOME/Documents"
//     XDG_DOCUMENTS_DIR="/volumes/big/Documents"
//
// The last line of a key counts. One in any other form is no line of the key.
std::optional<std::string> userFolder(std::string_view list, std::string_view key,
                                      const std::string& home);

}  // namespace zelvane::platform
