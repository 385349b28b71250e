// Jump lists made byte by byte, as the Windows shell writes them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zelvane::test {

struct JumpListEntry {
  std::string path;
  std::int32_t pin = -1;   // its place among the pinned ones
  std::uint32_t link = 0;  // the number that names its link; its place in the list where it is 0
};

// The stream "DestList" with its header telling the truth.
std::string destList(std::uint32_t version, const std::vector<JumpListEntry>& entries);

// "x.automaticDestinations-ms": the list and a stream for each entry, "link to " and its path.
std::string jumpList(std::uint32_t version, const std::vector<JumpListEntry>& entries);

// Puts a number of 32 bits into a file.
void putNumber(std::string& bytes, std::size_t at, std::uint32_t number);

}  // namespace zelvane::test
