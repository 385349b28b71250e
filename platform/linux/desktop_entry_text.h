// How programs are named to a Linux desktop: the lines of a desktop entry.
#pragma once

#include <string>
#include <string_view>

namespace zelvane::platform {

// The text as the value of a key: a backslash and the control characters that the format has signs
// for (line feed, carriage return, tab) as two letters each, and so the blanks at the beginning.
// Throws accessError where the format cannot hold it: it is not UTF-8, or has other control
// characters.
std::string entryValue(std::string_view text);

// The value of "Exec" that starts the program of that path, whatever is in it. Each argument is in
// double quotes, with a backslash before `"`, "`", "$" and "\", and "%" doubled; then it is written
// as a value. Two characters may not stand in what is named first: "=" by the format's own word,
// and "%" because some desktops look for the program before they have made one of two. A path with
// one of them is handed to /bin/sh, which becomes that program. Throws like `entryValue`.
std::string execValue(std::string_view path);

}  // namespace zelvane::platform
