#include "scheduler/picker_text.h"

#include <algorithm>

#include "core/text.h"
#include "platform/error.h"
#include "scheduler/digits.h"
#include "scheduler/time_of_day.h"

namespace zelvane::scheduler {

namespace {

using std::chrono::year_month_day;

constexpr std::size_t kDateLength = std::string_view("2026-11-21").size();

std::string padded(unsigned number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string dateText(year_month_day date) {
  return padded(static_cast<unsigned>(int(date.year())), 4) + "-" +
         padded(unsigned(date.month()), 2) + "-" + padded(unsigned(date.day()), 2);
}

year_month_day parseDate(std::string_view text) {
  const year_month_day date(std::chrono::year(digitsAt(text, 0, 4)),
                            std::chrono::month(static_cast<unsigned>(digitsAt(text, 5, 2))),
                            std::chrono::day(static_cast<unsigned>(digitsAt(text, 8, 2))));
  if (text.size() != kDateLength || text[4] != '-' || text[7] != '-' || !date.ok()) {
    throw platform::Error(platform::ErrorNumber::typeMismatch);
  }
  return date;
}

}  // namespace

std::string textOf(const controls::DatePicker& picker) {
  const auto value = picker.value();
  if (!value) {
    return std::string(kNoValue);
  }
  return picker.kind() == controls::DatePicker::Kind::date ? dateText(value->date)
                                                           : core::timeText(value->timeOfDay);
}

platform::LocalTime parseValue(std::string_view text, const controls::DatePicker& picker) {
  platform::LocalTime value = picker.shown();
  if (const auto blank = text.find(' '); blank != std::string_view::npos) {
    value.date = parseDate(text.substr(0, blank));
    value.timeOfDay = parseTimeOfDay(text.substr(blank + 1));
  } else if (text.size() == kDateLength) {
    value.date = parseDate(text);
  } else {
    value.timeOfDay = parseTimeOfDay(text);
  }
  return value;
}

}  // namespace zelvane::scheduler
