// Times of day as texts, and the hours between two of them.
#pragma once

#include <chrono>
#include <string_view>

namespace zelvane::scheduler {

// "hh:mm:ss" on a clock of 24 hours, two digits each, since midnight. Any other text is
// typeMismatch.
std::chrono::seconds parseTimeOfDay(std::string_view text);

// How many full hours strike on the way from one time to the other of the same day: from 10:45:00
// to 11:00:00 it is 1, from 23:10:00 to 00:05:00 it is -23.
int hoursBetween(std::chrono::seconds from, std::chrono::seconds to);

}  // namespace zelvane::scheduler
