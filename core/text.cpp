#include "core/text.h"

#include <algorithm>
#include <cstdint>

namespace zelvane::core {

namespace {

std::string twoDigits(std::int64_t number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

}  // namespace

std::string timeText(std::chrono::seconds timeOfDay) {
  const std::chrono::hh_mm_ss parts(timeOfDay);
  return twoDigits(parts.hours().count()) + ":" + twoDigits(parts.minutes().count()) + ":" +
         twoDigits(parts.seconds().count());
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

}  // namespace zelvane::core
