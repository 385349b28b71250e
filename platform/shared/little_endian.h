// Numbers in bytes, the lowest byte first.
#pragma once

#include <cassert>
#include <cstdint>
#include <string_view>

namespace zelvane::platform {

// `Number` is unsigned, and all of it lies in `bytes`.
template <typename Number>
Number littleEndian(std::string_view bytes, std::size_t at) {
  assert(at <= bytes.size() && sizeof(Number) <= bytes.size() - at);
  std::uint64_t number = 0;
  for (std::size_t place = sizeof(Number); place-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(bytes[at + place]);
  }
  return static_cast<Number>(number);
}

}  // namespace zelvane::platform
