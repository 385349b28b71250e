// The few formats of the program's texts, the same in every locale.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace zelvane::core {

// "hh:mm:ss" on a clock of 24 hours, always 8 characters.
std::string timeText(std::chrono::seconds timeOfDay);

// "Monday" to "Sunday", in English whatever the locale: the schedule compares them with its list.
std::string weekdayName(std::chrono::weekday day);

// How many characters a UTF-8 text has. A byte that is no UTF-8 counts as one.
std::size_t characterCount(std::string_view text);

// As many characters from the beginning of a UTF-8 text, or all that it has.
std::string firstCharacters(std::string_view text, std::size_t count);

}  // namespace zelvane::core
