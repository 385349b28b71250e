// The value of a date or time picker as a text that is stored.
#pragma once

#include <string>
#include <string_view>

#include "core/controls/date_picker.h"

namespace zelvane::scheduler {

// What stands for an empty picker.
inline constexpr std::string_view kNoValue = "Null";

// "2026-11-21" of a date picker, "08:30:00" of a time picker, whatever the locale; `kNoValue` of an
// empty one.
std::string textOf(const controls::DatePicker& picker);

// The value that a stored text stands for: a date, a time of day, or both with a blank between
// them. What the text does not say is as the picker shows it. Any other text is typeMismatch.
platform::LocalTime parseValue(std::string_view text, const controls::DatePicker& picker);

}  // namespace zelvane::scheduler
