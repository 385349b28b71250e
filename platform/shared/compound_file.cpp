#include "platform/shared/compound_file.h"

#include <cstddef>
#include <cstdint>
#include <set>

#include "platform/error.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/compound_file_format.h"
#include "platform/shared/little_endian.h"

namespace zelvane::platform {
namespace {

using compound::kEndOfChain;
using compound::kEntry;
using compound::kHeader;
using compound::kLastSector;
using compound::kLongestSmall;
using compound::kLowestByteFirst;
using compound::kMagic;
using compound::kSmallShift;
using compound::Sector;
using compound::Type;

constexpr std::size_t kTableInHeader = 76;  // the first sectors of the table, up to its end

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

  // The chain's beginning, of at least `length` bytes where it has as many.
  std::string chain(Sector first, std::uint64_t length = ~std::uint64_t{}) const {
    std::string content;
    for (Sector here = first; here != kEndOfChain && content.size() < length; here = next[here]) {
      content += sector(here);
      if (here >= next.size() || content.size() > bytes.size()) throw Error(ErrorNumber::deviceIo);
    }
    return content;
  }
};

struct Header {
  explicit Header(std::string_view file) {
    if (file.size() < kHeader || !file.starts_with(kMagic)) throw Error(ErrorNumber::deviceIo);
    shift = littleEndian<std::uint16_t>(file, 30);
    const bool isKnown =
        (shift == 9 || shift == 12) && littleEndian<std::uint16_t>(file, 28) == kLowestByteFirst &&
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

// Its length is that of its text and a zero at the end, in bytes.
std::string nameOf(std::string_view entry) {
  const std::size_t bytes = littleEndian<std::uint16_t>(entry, 64);
  if (bytes < 4 || bytes > 64 || bytes % 2 != 0) throw Error(ErrorNumber::deviceIo);
  std::string name;
  for (std::size_t at = 0; at < bytes - 2; at += 2) {
    const auto letter = littleEndian<std::uint16_t>(entry, at);
    if (letter == 0 || letter > 0x7F) throw Error(ErrorNumber::deviceIo);
    name += static_cast<char>(letter);
  }
  return name;
}

std::uint64_t lengthOf(std::string_view entry) {
  return number(entry, 120);  // of 32 bits, as none here is longer
}

std::string contentOf(std::string_view entry, const Space& space) {
  const std::uint64_t length = lengthOf(entry);
  std::string content = space.chain(number(entry, 116), length);
  if (content.size() < length) throw Error(ErrorNumber::deviceIo);
  content.resize(length);
  return content;
}

struct Directory {
  explicit Directory(std::string_view bytes) {
    for (std::size_t at = 0; at + kEntry <= bytes.size(); at += kEntry) {
      const std::string_view entry = bytes.substr(at, kEntry);
      const Type type{entry[66]};
      if (type == Type::stream) {
        streams.push_back(entry);
      } else if (type == Type::root && root.empty()) {
        root = entry;
      } else if (type != Type::free) {
        throw Error(ErrorNumber::deviceIo);
      }
    }
    if (root.empty()) throw Error(ErrorNumber::deviceIo);
  }

  std::string_view root;
  std::vector<std::string_view> streams;
};

// Streams that share sectors would be longer together than the file.
void refuseSharing(const Directory& directory, std::string_view file) {
  std::uint64_t together = 0;
  for (const std::string_view entry : directory.streams) together += lengthOf(entry);
  if (together > file.size()) throw Error(ErrorNumber::deviceIo);
}

std::vector<NamedStream> streamsOf(std::string_view file) {
  const Header header(file);
  Space space{file.substr(std::size_t{1} << header.shift), header.shift, {}};
  for (const Sector sector : sectorsOfTable(file, header, space)) {
    const std::vector<Sector> part = numbersIn(space.sector(sector));
    space.next.insert(space.next.end(), part.begin(), part.end());
  }
  const std::string entries = space.chain(header.directory);
  const Directory directory(entries);
  refuseSharing(directory, file);
  const std::string smallOnes = contentOf(directory.root, space);
  const Space smallSpace{smallOnes, kSmallShift, numbersIn(space.chain(header.smallTable))};

  std::vector<NamedStream> streams;
  std::set<std::string, NameLess> names;
  for (const std::string_view entry : directory.streams) {
    const bool isSmall = lengthOf(entry) < kLongestSmall;
    streams.push_back({nameOf(entry), contentOf(entry, isSmall ? smallSpace : space)});
    if (!names.insert(streams.back().name).second) throw Error(ErrorNumber::deviceIo);
  }
  return streams;
}

}  // namespace

std::optional<std::vector<NamedStream>> streamsIn(std::string_view file) {
  try {
    return streamsOf(file);
  } catch (const Error&) {
    return std::nullopt;
  }
}

}  // namespace zelvane::platform
