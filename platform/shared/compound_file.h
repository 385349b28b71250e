// A file of streams: Microsoft's compound file, read with distrust.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

struct NamedStream {
  std::string name;  // ASCII
  std::string content;

  bool operator==(const NamedStream&) const = default;
};

// All streams of the file, in the order of its directory. Nothing where the file is cut, damaged or
// none of this kind, or where it holds more than a list of streams with ASCII names, no two of
// which are the same but for case.
//
// As [MS-CFB] has it, which Microsoft publishes:
//
//     header   sector 0   sector 1   ...                  512 or 4,096 bytes each
//     the allocation table: for each sector the next one of its chain
//     the directory: 128 bytes for each stream: its name, its first sector, its length
//     streams of less than 4,096 bytes lie in small sectors of 64 bytes in a stream of their own,
//     with a table of their own
//
// Takes time and memory in proportion to `file`; a chain that runs in circles is damaged.
std::optional<std::vector<NamedStream>> streamsIn(std::string_view file);

}  // namespace zelvane::platform
