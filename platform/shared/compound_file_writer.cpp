#include "platform/shared/compound_file_writer.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <string_view>

#include "platform/error.h"
#include "platform/shared/compound_file_format.h"
#include "platform/shared/little_endian.h"

namespace zelvane::platform {
namespace {

using compound::kEndOfChain;
using compound::kHeader;
using compound::kLongestSmall;
using compound::kLowestByteFirst;
using compound::kMagic;
using compound::kSmallShift;
using compound::kTableSector;
using compound::kTablesInHeader;
using compound::Sector;
using compound::Type;

constexpr std::uint32_t kNobody = 0xFFFFFFFF;
constexpr std::size_t kSectorShift = 9;
constexpr std::size_t kSector = std::size_t{1} << kSectorShift;
constexpr std::size_t kSmallSector = std::size_t{1} << kSmallShift;
constexpr std::size_t kNumbersInSector = kSector / sizeof(Sector);

std::string bytesOf(std::span<const Sector> numbers) {
  std::string bytes;
  for (const Sector number : numbers) appendLittleEndian(bytes, number, sizeof(Sector));
  return bytes;
}

void fillUp(std::string& bytes, std::size_t unit, char with) {
  bytes.resize((bytes.size() + unit - 1) / unit * unit, with);
}

// Sectors and the table that strings them together.
struct Space {
  std::size_t sector;  // in bytes
  std::string bytes;
  std::vector<Sector> next;

  // The first sector of the new chain.
  Sector add(std::string_view content) {
    if (content.empty()) return kEndOfChain;
    const auto first = static_cast<Sector>(next.size());
    bytes += content;
    fillUp(bytes, sector, '\0');
    while (next.size() + 1 < bytes.size() / sector) next.push_back(Sector(next.size() + 1));
    next.push_back(kEndOfChain);
    return first;
  }
};

char capital(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

// The order in which a file's streams are looked for.
bool comesBefore(std::string_view name, std::string_view other) {
  if (name.size() != other.size()) return name.size() < other.size();
  return std::ranges::lexicographical_compare(name, other, {}, capital, capital);
}

struct Place {
  Sector first;
  std::size_t size;
};

// Streams are found by a tree, all nodes of which are black; so it is a plain binary one.
struct Tree {
  struct Node {
    std::uint32_t left = kNobody;
    std::uint32_t right = kNobody;
  };

  explicit Tree(const std::vector<NamedStream>& streams) : nodes(streams.size()) {
    std::vector<std::uint32_t> order(streams.size());
    std::iota(order.begin(), order.end(), std::uint32_t{0});
    std::ranges::sort(order, comesBefore,
                      [&](std::uint32_t which) { return std::string_view(streams[which].name); });
    top = grow(order);
  }

  std::uint32_t grow(std::span<const std::uint32_t> order) {
    if (order.empty()) return kNobody;
    const std::size_t middle = order.size() / 2;
    Node& node = nodes[order[middle]];
    node.left = grow(order.first(middle));
    node.right = grow(order.subspan(middle + 1));
    return order[middle] + 1;  // the directory's first entry is its root
  }

  std::vector<Node> nodes;
  std::uint32_t top;
};

std::string entry(std::string_view name, Type type, Tree::Node siblings, std::uint32_t child,
                  Place place) {
  constexpr char kBlack = 1;
  std::string bytes;
  for (const char letter : name) bytes += {letter, '\0'};
  bytes.resize(64);
  appendLittleEndian(bytes, name.empty() ? 0 : 2 * (name.size() + 1), 2);
  bytes += {static_cast<char>(type), type == Type::free ? '\0' : kBlack};
  for (const std::uint32_t number : {siblings.left, siblings.right, child}) {
    appendLittleEndian(bytes, number, sizeof number);
  }
  bytes.resize(116);  // neither class nor times
  appendLittleEndian(bytes, place.first, sizeof place.first);
  appendLittleEndian(bytes, place.size, 8);
  return bytes;
}

std::string directoryOf(const std::vector<NamedStream>& streams, const std::vector<Place>& places,
                        Place smallOnes) {
  const Tree tree(streams);
  std::string directory = entry("Root Entry", Type::root, {}, tree.top, smallOnes);
  for (std::size_t which = 0; which < streams.size(); ++which) {
    directory +=
        entry(streams[which].name, Type::stream, tree.nodes[which], kNobody, places[which]);
  }
  while (directory.size() % kSector != 0) {
    directory += entry("", Type::free, {}, kNobody, {.first = 0, .size = 0});
  }
  return directory;
}

// Takes sectors behind all others for the table itself; returns the first.
Sector addTable(Space& space) {
  const auto first = static_cast<Sector>(space.next.size());
  const std::size_t sectors = (space.next.size() + kNumbersInSector - 2) / (kNumbersInSector - 1);
  if (sectors > kTablesInHeader) throw Error(ErrorNumber::accessError);
  space.next.resize(space.next.size() + sectors, kTableSector);
  space.bytes += bytesOf(space.next);
  fillUp(space.bytes, kSector, '\xFF');
  return first;
}

std::string header(Sector directory, Sector smallTable, std::size_t smallTableSectors, Sector table,
                   std::size_t tableSectors) {
  std::string bytes(kMagic);
  bytes.resize(24);
  constexpr std::array<std::size_t, 5> kForm{0x3E, 3, kLowestByteFirst, kSectorShift, kSmallShift};
  for (const std::size_t fact : kForm) appendLittleEndian(bytes, fact, 2);
  bytes.resize(44);
  const std::array<std::size_t, 8> places{
      tableSectors, directory, 0, kLongestSmall, smallTable, smallTableSectors, kEndOfChain, 0};
  for (const std::size_t fact : places) appendLittleEndian(bytes, fact, 4);
  for (std::size_t sector = 0; sector < tableSectors; ++sector) {
    appendLittleEndian(bytes, table + sector, 4);
  }
  bytes.resize(kHeader, '\xFF');
  return bytes;
}

}  // namespace

std::string compoundFile(const std::vector<NamedStream>& streams) {
  Space space{.sector = kSector, .bytes = {}, .next = {}};
  Space small{.sector = kSmallSector, .bytes = {}, .next = {}};
  std::vector<Place> places;
  for (const auto& [name, content] : streams) {
    assert(!name.empty() && name.size() < 32);
    Space& where = content.size() < kLongestSmall ? small : space;
    places.push_back({where.add(content), content.size()});
  }
  std::string smallTable = bytesOf(small.next);
  fillUp(smallTable, kSector, '\xFF');
  const Place smallOnes{space.add(small.bytes), small.bytes.size()};
  const Sector smallTableAt = space.add(smallTable);
  const Sector directory = space.add(directoryOf(streams, places, smallOnes));
  const Sector table = addTable(space);
  return header(directory, smallTableAt, smallTable.size() / kSector, table,
                space.next.size() - table) +
         space.bytes;
}

}  // namespace zelvane::platform
