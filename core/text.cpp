#include "core/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zelvane::core {

namespace {

std::string twoDigits(std::int64_t number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

}  // namespace

std::string timeText(std::chrono::seconds timeOfDay) {
  const std::chrono::hh_mm_ss parts(timeOfDay);
  return twoDigits(parts.hours().count()) + ":" + twoDigits(parts.minutes().count()) + ":" +
         twoDigits(parts.seconds().count());
}

std::string weekdayName(std::chrono::weekday day) {
  constexpr std::array kNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                              "Thursday", "Friday", "Saturday"};
  return kNames[day.c_encoding()];
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(text, beginsCharacter));
}

std::string firstCharacters(std::string_view text, std::size_t count) {
  std::size_t begun = 0;
  const auto end = std::ranges::find_if(
      text, [&](char byte) { return beginsCharacter(byte) && ++begun > count; });
  return {text.begin(), end};
}

}  // namespace zelvane::core
