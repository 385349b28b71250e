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
// as a value. A path with "=", which may not stand first, is handed to /bin/sh as what to become.
// Throws like `entryValue`.
std::string execValue(std::string_view path);

}  // namespace zelvane::platform
