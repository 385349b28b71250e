#include "tests/support/jump_list_file.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/shared/compound_file_writer.h"
#include "platform/shared/little_endian.h"

namespace zelvane::test {
namespace {

std::string bytesOf(std::uint64_t number, std::size_t size) {
  std::string bytes;
  platform::appendLittleEndian(bytes, number, size);
  return bytes;
}

std::string wide(std::string_view text) {
  std::string bytes;
  for (const char letter : text) bytes += {letter, '\0'};
  return bytes;
}

std::uint32_t linkOf(const std::vector<JumpListEntry>& entries, std::size_t place) {
  const std::uint32_t link = entries[place].link;
  return link != 0 ? link : static_cast<std::uint32_t>(place + 1);
}

std::string hexadecimal(std::uint32_t number) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
  return {digits.data(), end};
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
  for (std::size_t place = 0; place < entries.size(); ++place) {
    const JumpListEntry& entry = entries[place];
    std::string bytes(108, '\0');
    putNumber(bytes, 88, linkOf(entries, place));
    bytes += bytesOf(static_cast<std::uint32_t>(entry.pin), 4);
    if (version > 1) bytes.resize(128);
    bytes += bytesOf(entry.path.size(), 2) + wide(entry.path);
    if (version > 1) bytes += bytesOf(0, 4);
    list += bytes;
  }
  return list;
}

std::string jumpList(std::uint32_t version, const std::vector<JumpListEntry>& entries) {
  std::vector<platform::NamedStream> streams;
  for (std::size_t place = 0; place < entries.size(); ++place) {
    streams.push_back({hexadecimal(linkOf(entries, place)), "link to " + entries[place].path});
  }
  streams.push_back({"DestList", destList(version, entries)});
  return platform::compoundFile(streams);
}

}  // namespace zelvane::test
