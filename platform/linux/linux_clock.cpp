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
  using namespace std::chrono;
  tzset();
  std::tm local{};
  localtime_r(&second, &local);
  const year_month_day date(year(local.tm_year + 1900),
                            month(static_cast<unsigned>(local.tm_mon + 1)),
                            day(static_cast<unsigned>(local.tm_mday)));
  // Zones that count leap seconds have a second 60, which no time of day here has.
  const seconds timeOfDay =
      hours(local.tm_hour) + minutes(local.tm_min) + seconds(std::min(local.tm_sec, 59));
  return {date, timeOfDay};
}

}  // namespace zelvane::platform
