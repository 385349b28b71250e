// Any bytes as a text that JSON can hold, and back.
#pragma once

#include <string>
#include <string_view>

namespace zelvane::platform {

// JSON knows text in UTF-8 alone; the program's texts may be any bytes (the name of a Linux folder
// may). Valid UTF-8 stays as it is. A byte that is no part of it becomes the character
// U+10FE00 + byte, out of a range for private use:
//
//     63 61 66 E9       "caf" and one byte of Latin-1
//     63 61 66 F4 8F BB A9
//
// That range, should a text have it, is itself taken byte by byte. So every text comes back as it
// was, and two different texts never become one.
std::string toJsonText(std::string_view bytes);

// The bytes that became this text. One that was never made so comes back as it is, apart from
// characters of that range.
std::string fromJsonText(std::string_view text);

}  // namespace zelvane::platform
