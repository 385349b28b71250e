// What its user has pinned in a jump list of the Windows taskbar.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/shared/compound_file.h"

namespace zelvane::platform {

// A jump list without what was merely used.
struct PinnedPart {
  bool isAll = true;                 // nothing is missing
  std::vector<NamedStream> streams;  // none where nothing is pinned
};

// `file` is the content of a file "*.automaticDestinations-ms": a compound file with a link for
// each document, named by a number in hexadecimal, and a stream "DestList", which says in which
// order they are shown. Its form is not published; as the forensic literature has it (the "Jump
// lists format" of the libyal project, and the tools that agree with it), all numbers with the
// lowest byte first:
//
//     header    0  4  version: 1 (Windows 7 and 8), 3 or 4 (Windows 10 and 11)
//      (32)     4  4  how many entries
//               8  4  how many of them are pinned
//     entry    88  4  the number that names the link
//             108  4  the place among the pinned ones, or -1
//             112  2  version 1: the length of the path in 16-bit units; the path follows
//             128  2  versions 3 and 4: the same; behind the path 4 bytes with the length of
//                     properties, and these
//
// Entries and links that are pinned stay byte for byte, and so does every stream that is no link;
// links that no entry names go. Nothing is returned where the list may hold anything: it is of a
// version that is not known, or damaged, or its header, its entries and its links do not agree to
// the last byte.
std::optional<PinnedPart> pinnedPart(std::string_view file);

}  // namespace zelvane::platform
