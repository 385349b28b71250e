#include "tests/support/jump_list_file.h"

#include <algorithm>

namespace zelvane::test {
namespace {

constexpr std::size_t kSector = 512;
constexpr std::size_t kSmall = 64;
constexpr std::size_t kLongestSmall = 4096;
constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kTable = 0xFFFFFFFD;

std::string bytesOf(std::uint64_t number, std::size_t size) {
  std::string bytes;
  for (; size-- > 0; number >>= 8U) bytes += static_cast<char>(number & 0xFFU);
  return bytes;
}

std::string wide(std::string_view text) {
  std::string bytes;
  for (const char letter : text) bytes += {letter, '\0'};
  return bytes;
}

void fillUp(std::string& bytes, std::size_t unit, char with = '\0') {
  bytes.resize((bytes.size() + unit - 1) / unit * unit, with);
}

// Appends content in whole units and their chain to the table; returns the first unit's number.
std::uint32_t append(std::string content, std::size_t unit, std::string& space,
                     std::vector<std::uint32_t>& table) {
  if (content.empty()) return kEndOfChain;
  fillUp(content, unit);
  const auto first = static_cast<std::uint32_t>(table.size());
  for (std::size_t left = content.size() / unit; left-- > 0;) {
    table.push_back(left == 0 ? kEndOfChain : static_cast<std::uint32_t>(table.size() + 1));
  }
  space += content;
  return first;
}

std::string directoryEntry(std::string_view name, char type, std::uint32_t first,
                           std::size_t size) {
  std::string entry = wide(name);
  entry.resize(64);
  entry += bytesOf(2 * (name.size() + 1), 2);
  entry += type;
  entry += '\1';
  for (int sibling = 0; sibling < 3; ++sibling) entry += bytesOf(kFree, 4);
  entry.resize(116);
  return entry + bytesOf(first, 4) + bytesOf(size, 8);
}

std::string bytesOf(const std::vector<std::uint32_t>& table) {
  std::string bytes;
  for (const std::uint32_t number : table) bytes += bytesOf(number, 4);
  fillUp(bytes, kSector, '\xFF');
  return bytes;
}

}  // namespace

void putNumber(std::string& bytes, std::size_t at, std::uint32_t number) {
  bytes.replace(at, 4, bytesOf(number, 4));
}

std::string destList(std::uint32_t version, const std::vector<JumpListEntry>& entries) {
  const auto pinned =
      std::ranges::count_if(entries, [](const auto& entry) { return entry.pin >= 0; });
  std::string list = bytesOf(version, 4) + bytesOf(entries.size(), 4) +
                     bytesOf(static_cast<std::uint64_t>(pinned), 4);
  list.resize(32);
  for (const JumpListEntry& entry : entries) {
    std::string bytes(108, '\0');
    bytes += bytesOf(static_cast<std::uint32_t>(entry.pin), 4);
    if (version > 1) bytes.resize(128);
    bytes += bytesOf(entry.path.size(), 2) + wide(entry.path);
    if (version > 1) bytes += bytesOf(0, 4);
    list += bytes;
  }
  return list;
}

std::string compoundFile(const std::vector<NamedStream>& streams) {
  std::string space;
  std::string small;
  std::vector<std::uint32_t> table{kTable};  // sector 0 is the table itself
  std::vector<std::uint32_t> smallTable;
  space.resize(kSector);
  std::string directory(128, '\0');  // the root's entry comes last
  // The directory comes before what it names, so its room is taken first.
  std::size_t room = 128 * (streams.size() + 1);
  const std::uint32_t directoryStart = append(std::string(room, '\0'), kSector, space, table);
  for (const NamedStream& stream : streams) {
    const bool isSmall = stream.content.size() < kLongestSmall;
    const std::uint32_t first = isSmall ? append(stream.content, kSmall, small, smallTable)
                                        : append(stream.content, kSector, space, table);
    directory += directoryEntry(stream.name, 2, first, stream.content.size());
  }
  const std::uint32_t smallTableStart = append(bytesOf(smallTable), kSector, space, table);
  const std::size_t smallSize = small.size();
  const std::uint32_t smallStart = append(small, kSector, space, table);
  directory.replace(0, 128, directoryEntry("Root Entry", 5, smallStart, smallSize));
  space.replace(directoryStart * kSector, directory.size(), directory);
  space.replace(0, kSector, bytesOf(table));

  std::string header = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  header.resize(24);
  header += bytesOf(0x3E, 2) + bytesOf(3, 2) + bytesOf(0xFFFE, 2) + bytesOf(9, 2) + bytesOf(6, 2);
  header.resize(44);
  header += bytesOf(1, 4) + bytesOf(directoryStart, 4) + bytesOf(0, 4) + bytesOf(kLongestSmall, 4) +
            bytesOf(smallTableStart, 4) + bytesOf(smallTable.empty() ? 0 : 1, 4) +
            bytesOf(kEndOfChain, 4) + bytesOf(0, 4) + bytesOf(0, 4);
  header.resize(kSector, '\xFF');
  return header + space;
}

std::string jumpList(std::uint32_t version, const std::vector<JumpListEntry>& entries) {
  std::vector<NamedStream> streams;
  for (std::size_t number = 1; number <= entries.size(); ++number) {
    streams.push_back({std::to_string(number), "link to " + entries[number - 1].path});
  }
  streams.push_back({"DestList", destList(version, entries)});
  return compoundFile(streams);
}

}  // namespace zelvane::test
