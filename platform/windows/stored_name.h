// Any text as names of registry keys.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

// A key's name has 1 to 255 characters, no "\", and the system does not tell its case apart.
//
//     text                     names
//     RunOn                    ^Run^On            "^" stands before each capital letter
//     C:\Zürich 100%           ^C:%5c^Z%c3%bcrich 100%25
//     (none)                   ^
//     a longer one             its first part, closed by "^" ; ... ; its last part
//
// The bytes that are written as two digits are "%", "\", "^", and all that are not printable ASCII.
// A part is cut between two of these signs and never inside one, so different texts have different
// names, and so have different sequences of texts. The last name of a text is no longer than
// others, and may be the name of a value as well.
std::vector<std::wstring> storedNames(std::string_view text);

}  // namespace zelvane::platform
