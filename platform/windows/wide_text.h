// Texts as Windows writes them, and as the program does.
#pragma once

#include <string>
#include <string_view>

namespace zelvane::platform {

// UTF-8 to UTF-16 and back, one to one for any text that Windows can hold: a name may have halves
// of surrogate pairs alone, which are written as three bytes each (WTF-8,
// simonsapin.github.io/wtf-8). Bytes that are neither become U+FFFD, one for each.
std::wstring wideText(std::string_view text);
std::string plainText(std::wstring_view wide);

// The text as a name for the system, which would cut it at a zero character and take it for another
// one. Throws fileNotFound where there is a zero byte inside.
std::wstring wideName(std::string_view name);

}  // namespace zelvane::platform
