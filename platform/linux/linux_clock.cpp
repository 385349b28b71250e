#include "platform/linux/linux_clock.h"

#include <algorithm>
#include <chrono>

namespace zelvane::platform {

LocalTime LinuxClock::now() const {
  // Not time(): it reads a coarser clock, which may still show the second before.
  timespec present{};
  clock_gettime(CLOCK_REALTIME, &present);
  return localTimeAt(present.tv_sec);
}

LocalTime localTimeAt(std::time_t second) {
  namespace chrono = std::chrono;
  tzset();
  std::tm local{};
  localtime_r(&second, &local);
  const chrono::year_month_day date(chrono::year(local.tm_year + 1900),
                                    chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
                                    chrono::day(static_cast<unsigned>(local.tm_mday)));
  // Zones that count leap seconds have a second 60, which no time of day here has.
  const auto timeOfDay = chrono::hours(local.tm_hour) + chrono::minutes(local.tm_min) +
                         chrono::seconds(std::min(local.tm_sec, 59));
  return {date, timeOfDay};
}

}  // namespace zelvane::platform
