#include "platform/shared/jump_list.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/shared/compound_file.h"
#include "platform/shared/little_endian.h"

namespace zelvane::platform {
namespace {

constexpr std::size_t kHeader = 32;
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

}  // namespace

Pins pinsIn(std::string_view file) {
  const std::optional<std::string> list = streamIn(file, "DestList");
  if (!list || list->size() < kHeader) return Pins::unknown;
  const std::uint32_t version = number(*list, 0);
  if (version != 1 && version != 3 && version != 4) return Pins::unknown;
  if (number(*list, 8) != 0) return Pins::some;
  std::string_view rest = std::string_view(*list).substr(kHeader);
  std::uint32_t entries = 0;
  for (; !rest.empty(); ++entries) {
    const std::optional<std::size_t> size = sizeOfEntry(rest, version);
    if (!size) return Pins::unknown;
    if (number(rest, kPin) != kUnpinned) return Pins::some;
    rest.remove_prefix(*size);
  }
  return entries == number(*list, 4) ? Pins::none : Pins::unknown;
}

}  // namespace zelvane::platform
