#include "platform/shared/compound_file.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/error.h"
#include "platform/shared/little_endian.h"

namespace zelvane::platform {
namespace {

using Sector = std::uint32_t;
constexpr Sector kLastSector = 0xFFFFFFFA;  // those above it are signs
constexpr Sector kEndOfChain = 0xFFFFFFFE;

constexpr std::size_t kHeader = 512;
constexpr std::size_t kTableInHeader = 76;  // the first sectors of the table, up to its end
constexpr std::size_t kEntry = 128;         // of the directory
constexpr std::size_t kSmallShift = 6;
constexpr std::uint64_t kLongestSmall = 4096;
constexpr unsigned char kStream = 2;
constexpr unsigned char kRoot = 5;

std::uint32_t number(std::string_view bytes, std::size_t at) {
  return littleEndian<std::uint32_t>(bytes, at);
}

std::vector<Sector> numbersIn(std::string_view bytes) {
  std::vector<Sector> numbers;
  numbers.reserve(bytes.size() / sizeof(Sector));
  for (std::size_t at = 0; at + sizeof(Sector) <= bytes.size(); at += sizeof(Sector)) {
    numbers.push_back(number(bytes, at));
  }
  return numbers;
}

// Sectors and the table that strings them together.
struct Space {
  std::string_view bytes;  // from sector 0 on
  std::size_t shift;       // a sector is 2 to the power of it
  std::vector<Sector> next;

  std::string_view sector(Sector which) const {
    const std::size_t size = std::size_t{1} << shift;
    if (which > kLastSector || which >= bytes.size() >> shift) throw Error(ErrorNumber::deviceIo);
    return bytes.substr(std::size_t{which} << shift, size);
  }

  std::string chain(Sector first) const {
    std::string content;
    for (Sector here = first; here != kEndOfChain; here = next[here]) {
      content += sector(here);
      if (here >= next.size() || content.size() > bytes.size()) throw Error(ErrorNumber::deviceIo);
    }
    return content;
  }
};

struct Header {
  explicit Header(std::string_view file) {
    constexpr std::string_view kMagic = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
    if (file.size() < kHeader || !file.starts_with(kMagic)) throw Error(ErrorNumber::deviceIo);
    shift = littleEndian<std::uint16_t>(file, 30);
    const bool isKnown =
        (shift == 9 || shift == 12) && littleEndian<std::uint16_t>(file, 28) == 0xFFFE &&
        littleEndian<std::uint16_t>(file, 32) == kSmallShift && number(file, 56) == kLongestSmall;
    if (!isKnown || file.size() < std::size_t{1} << shift) throw Error(ErrorNumber::deviceIo);
    directory = number(file, 48);
    smallTable = number(file, 60);
    moreOfTable = number(file, 68);
  }

  std::size_t shift;
  Sector directory;
  Sector smallTable;
  Sector moreOfTable;  // where more of the table's sectors are named
};

// The sectors that hold the table: the first ones are named in the header, others in sectors of
// their own, the last number of which leads to the next.
std::vector<Sector> sectorsOfTable(std::string_view file, const Header& header,
                                   const Space& space) {
  std::vector<Sector> sectors = numbersIn(file.substr(kTableInHeader, kHeader - kTableInHeader));
  std::size_t read = 0;
  for (Sector here = header.moreOfTable; here != kEndOfChain;) {
    const std::vector<Sector> more = numbersIn(space.sector(here));
    if (++read > space.bytes.size() >> space.shift) throw Error(ErrorNumber::deviceIo);
    sectors.insert(sectors.end(), more.begin(), more.end() - 1);
    here = more.back();
  }
  std::erase_if(sectors, [](Sector sector) { return sector > kLastSector; });
  if (sectors.size() > space.bytes.size() >> space.shift) throw Error(ErrorNumber::deviceIo);
  return sectors;
}

bool isCalled(std::string_view entry, std::string_view name) {
  const std::size_t bytes = littleEndian<std::uint16_t>(entry, 64);
  if (bytes != 2 * (name.size() + 1) || bytes > 64) return false;
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (entry[2 * at] != name[at] || entry[2 * at + 1] != '\0') return false;
  }
  return true;
}

std::string contentOf(std::string_view entry, const Space& space) {
  const std::uint64_t length = number(entry, 120);  // of 32 bits, as none here is longer
  std::string content = space.chain(number(entry, 116));
  if (content.size() < length) throw Error(ErrorNumber::deviceIo);
  content.resize(length);
  return content;
}

std::optional<std::string> streamOf(std::string_view file, std::string_view name) {
  const Header header(file);
  Space space{file.substr(std::size_t{1} << header.shift), header.shift, {}};
  for (const Sector sector : sectorsOfTable(file, header, space)) {
    const std::vector<Sector> part = numbersIn(space.sector(sector));
    space.next.insert(space.next.end(), part.begin(), part.end());
  }
  const std::string directory = space.chain(header.directory);
  std::string_view root;
  std::string_view found;
  for (std::size_t at = 0; at + kEntry <= directory.size(); at += kEntry) {
    const std::string_view entry = std::string_view(directory).substr(at, kEntry);
    const auto type = static_cast<unsigned char>(entry[66]);
    if (type == kRoot && root.empty()) root = entry;
    if (type != kStream || !isCalled(entry, name)) continue;
    if (!found.empty()) throw Error(ErrorNumber::deviceIo);
    found = entry;
  }
  if (found.empty()) return std::nullopt;
  if (number(found, 120) >= kLongestSmall) return contentOf(found, space);
  if (root.empty()) throw Error(ErrorNumber::deviceIo);
  const std::string smallOnes = contentOf(root, space);
  return contentOf(found, {smallOnes, kSmallShift, numbersIn(space.chain(header.smallTable))});
}

}  // namespace

std::optional<std::string> streamIn(std::string_view file, std::string_view name) {
  try {
    return streamOf(file, name);
  } catch (const Error&) {
    return std::nullopt;
  }
}

}  // namespace zelvane::platform
