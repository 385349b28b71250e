// A date and a time of day as the user's wall clock shows them, without a time zone.
#pragma once

#include <chrono>

namespace zelvane::platform {

struct LocalTime {
  std::chrono::year_month_day date{};
  std::chrono::seconds timeOfDay{};  // since midnight, 0 to 86,399

  friend bool operator==(const LocalTime&, const LocalTime&) = default;
};

}  // namespace zelvane::platform
