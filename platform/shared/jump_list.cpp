#include "platform/shared/jump_list.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

#include "platform/shared/little_endian.h"

namespace zelvane::platform {
namespace {

constexpr std::string_view kOrder = "DestList";
constexpr std::size_t kHeader = 32;
constexpr std::size_t kEntries = 4;
constexpr std::size_t kPinnedEntries = 8;
constexpr std::size_t kLink = 88;
constexpr std::size_t kPin = 108;
constexpr std::uint32_t kUnpinned = 0xFFFFFFFF;

std::uint32_t number(std::string_view bytes, std::size_t at) {
  return littleEndian<std::uint32_t>(bytes, at);
}

// The bytes that the first entry takes; nothing where they are not all there.
std::optional<std::size_t> sizeOfEntry(std::string_view entries, std::uint32_t version) {
  const std::size_t length = version == 1 ? 112 : 128;
  std::size_t size = length + sizeof(std::uint16_t);
  if (entries.size() < size) return std::nullopt;
  size += std::size_t{2} * littleEndian<std::uint16_t>(entries, length);
  if (version != 1) {
    if (entries.size() < size + sizeof(std::uint32_t)) return std::nullopt;
    size += sizeof(std::uint32_t) + std::size_t{number(entries, size)};
  }
  return size <= entries.size() ? std::optional(size) : std::nullopt;
}

// Nothing where they are not what the header says.
std::optional<std::vector<std::string_view>> entriesIn(std::string_view order) {
  if (order.size() < kHeader) return std::nullopt;
  const std::uint32_t version = number(order, 0);
  if (version != 1 && version != 3 && version != 4) return std::nullopt;
  std::vector<std::string_view> entries;
  for (std::string_view rest = order.substr(kHeader); !rest.empty();) {
    const std::optional<std::size_t> size = sizeOfEntry(rest, version);
    if (!size) return std::nullopt;
    entries.push_back(rest.substr(0, *size));
    rest.remove_prefix(*size);
  }
  const bool agree = entries.size() == number(order, kEntries);
  return agree ? std::optional(entries) : std::nullopt;
}

bool isPinned(std::string_view entry) { return number(entry, kPin) != kUnpinned; }

// Nothing where the stream is no link.
std::optional<std::uint32_t> numberOfLink(std::string_view name) {
  std::uint32_t link = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), link, 16);
  const bool isNumber = error == std::errc() && end == name.data() + name.size();
  return isNumber ? std::optional(link) : std::nullopt;
}

// The order of the pinned ones alone.
std::string orderOf(const std::vector<std::string_view>& pinned, std::string_view order) {
  std::string shorter(order.substr(0, kEntries));
  appendLittleEndian(shorter, pinned.size(), sizeof(std::uint32_t));
  appendLittleEndian(shorter, pinned.size(), sizeof(std::uint32_t));
  shorter += order.substr(shorter.size(), kHeader - shorter.size());
  for (const std::string_view entry : pinned) shorter += entry;
  return shorter;
}

}  // namespace

std::optional<PinnedPart> pinnedPart(std::string_view file) {
  std::optional<std::vector<NamedStream>> streams = streamsIn(file);
  if (!streams) return std::nullopt;
  const auto order = std::ranges::find(*streams, kOrder, &NamedStream::name);
  if (order == streams->end()) return std::nullopt;
  const auto entries = entriesIn(order->content);
  if (!entries) return std::nullopt;

  std::vector<std::string_view> pinned;
  std::ranges::copy_if(*entries, std::back_inserter(pinned), isPinned);
  if (pinned.size() != number(order->content, kPinnedEntries)) return std::nullopt;
  PinnedPart part{.isAll = pinned.size() == entries->size(), .streams = {}};
  if (pinned.empty()) return part;

  std::set<std::uint32_t> links;
  for (const std::string_view entry : pinned) links.insert(number(entry, kLink));
  if (links.size() != pinned.size()) return std::nullopt;
  for (const NamedStream& stream : *streams) {
    const std::optional<std::uint32_t> link = numberOfLink(stream.name);
    if (stream.name == kOrder) {
      part.streams.push_back({stream.name, orderOf(pinned, stream.content)});
    } else if (!link || links.erase(*link) != 0) {
      part.streams.push_back(stream);
    } else {
      part.isAll = false;
    }
  }
  return links.empty() ? std::optional(part) : std::nullopt;
}

}  // namespace zelvane::platform
