// Jump lists made byte by byte, as the Windows shell writes them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::test {

struct JumpListEntry {
  std::string path;
  std::int32_t pin = -1;  // its place among the pinned ones
};

// The stream "DestList" with its header telling the truth.
std::string destList(std::uint32_t version, const std::vector<JumpListEntry>& entries);

struct NamedStream {
  std::string name;
  std::string content;
};

// A compound file of version 3, sectors of 512 bytes: first the table, then the directory, the
// table of small sectors, the small sectors, and streams of 4,096 bytes and more.
std::string compoundFile(const std::vector<NamedStream>& streams);

// "x.automaticDestinations-ms": the list and a stream for each entry.
std::string jumpList(std::uint32_t version, const std::vector<JumpListEntry>& entries);

// Puts a number of 32 bits into a file.
void putNumber(std::string& bytes, std::size_t at, std::uint32_t number);

}  // namespace zelvane::test
