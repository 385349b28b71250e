// Numbers in bytes, the lowest byte first.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
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

// Of `size` bytes, into which the number fits.
inline void appendLittleEndian(std::string& bytes, std::uint64_t number, std::size_t size) {
  for (; size-- > 0; number >>= 8U) bytes += static_cast<char>(number & 0xFFU);
}

}  // namespace zelvane::platform
