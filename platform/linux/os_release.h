// How a Linux release names itself: os-release.
#pragma once

#include <string>
#include <string_view>

namespace zelvane::platform {

// The release's name for people in the text of such a file; "Linux", which is what that format
// says, where it has none. A line is a shell assignment:
//
//     PRETTY_NAME="Debian GNU/Linux 12 (bookworm)"
//     PRETTY_NAME='Some "other" one'
//     PRETTY_NAME=Short
//
// The last one counts. In double quotes a backslash protects the character behind it.
std::string releaseName(std::string_view text);

}  // namespace zelvane::platform
