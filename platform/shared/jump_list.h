// Whether a jump list of the Windows taskbar holds what its user has pinned.
#pragma once

#include <string_view>

namespace zelvane::platform {

// unknown: of a version that is not known, damaged, or no such list. It may hold anything.
enum class Pins { none, some, unknown };

// `file` is the content of a file "*.automaticDestinations-ms": a compound file with a link for
// each document and a stream "DestList", which says in which order they are shown. Its form is not
// published; as the forensic literature has it (the "Jump lists format" of the libyal project, and
// the tools that agree with it), all numbers with the lowest byte first:
//
//     header    0  4  version: 1 (Windows 7 and 8), 3 or 4 (Windows 10 and 11)
//      (32)     4  4  how many entries
//               8  4  how many of them are pinned
//     entry   108  4  the place among the pinned ones, or -1
//             112  2  version 1: the length of the path in 16-bit units; the path follows
//             128  2  versions 3 and 4: the same; behind the path 4 bytes with the length of
//                     properties, and these
//
// The list has no pins only where header and entries agree on it and the entries fill the stream to
// its last byte.
Pins pinsIn(std::string_view file);

}  // namespace zelvane::platform
