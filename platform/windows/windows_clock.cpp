#include "platform/windows/windows_clock.h"

#include "platform/windows/system_error.h"

namespace zelvane::platform {

LocalTime WindowsClock::now() const {
  // Not GetLocalTime: it reads a coarser clock, which may still show the second before.
  FILETIME present{};
  GetSystemTimePreciseAsFileTime(&present);
  return localTimeAt(present);
}

LocalTime localTimeAt(const FILETIME& moment, const TIME_ZONE_INFORMATION* zone) {
  namespace chrono = std::chrono;
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  if (FileTimeToSystemTime(&moment, &universal) == 0 ||
      SystemTimeToTzSpecificLocalTime(zone, &universal, &local) == 0) {
    throwSystemError();
  }
  const chrono::year_month_day date(chrono::year(local.wYear), chrono::month(local.wMonth),
                                    chrono::day(local.wDay));
  return {date, chrono::hours(local.wHour) + chrono::minutes(local.wMinute) +
                    chrono::seconds(local.wSecond)};
}

}  // namespace zelvane::platform
