// What reading and writing a compound file have to agree on: sizes in bytes and signs, as [MS-CFB]
// has them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zelvane::platform::compound {

inline constexpr std::string_view kMagic = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
inline constexpr std::size_t kHeader = 512;
inline constexpr std::size_t kTablesInHeader = 109;  // where they are; of more, a list elsewhere
inline constexpr std::uint16_t kLowestByteFirst = 0xFFFE;

// Streams of fewer bytes than `kLongestSmall` lie in small sectors of 2 to the power of
// `kSmallShift`.
inline constexpr std::size_t kSmallShift = 6;
inline constexpr std::size_t kLongestSmall = 4096;

using Sector = std::uint32_t;
inline constexpr Sector kLastSector = 0xFFFFFFFA;  // those above it are signs
inline constexpr Sector kTableSector = 0xFFFFFFFD;
inline constexpr Sector kEndOfChain = 0xFFFFFFFE;

// Of the directory.
inline constexpr std::size_t kEntry = 128;
enum class Type : char { free = 0, stream = 2, root = 5 };

}  // namespace zelvane::platform::compound
