#include "tests/unit/scheduler/simulated_year.h"

namespace zelvane::scheduler {

namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::sys_seconds;
using std::chrono::year;

constexpr sys_seconds universal(std::chrono::year_month_day date, seconds timeOfDay) {
  return sys_days(date) + timeOfDay;
}

// Summer time begins and ends at one o'clock, universal time.
seconds offsetAt(sys_seconds moment) {
  const bool summer =
      moment >= universal(year{2028} / 3 / 26, 1h) && moment < universal(year{2028} / 10 / 29, 1h);
  return summer ? 2h : 1h;
}

// How much the clock is set wrong. In May local time is two hours ahead.
seconds errorAt(sys_seconds moment) {
  if (moment >= universal(year{2028} / 5 / 10, 6h + 45min) &&
      moment < universal(year{2028} / 5 / 10, 10h)) {
    return -30min;
  }
  if (moment >= universal(year{2028} / 5 / 11, 6h + 15min) &&
      moment < universal(year{2028} / 5 / 11, 10h)) {
    return 30min;
  }
  return 0s;
}

bool isAsleepAt(sys_seconds moment) {
  return moment >= universal(year{2028} / 5 / 12, 5h) &&
         moment < universal(year{2028} / 5 / 12, 9h);
}

platform::LocalTime onTheWall(sys_seconds moment) {
  const auto wall = moment + offsetAt(moment) + errorAt(moment);
  const auto midnight = std::chrono::floor<days>(wall);
  return {std::chrono::year_month_day(midnight), wall - midnight};
}

}  // namespace

void SimulatedYear::live(const std::function<void(const platform::LocalTime&)>& second) {
  const sys_seconds start = universal(year{2027} / 12 / 31, 23h);
  const sys_seconds end = universal(year{2028} / 12 / 31, 23h);
  for (sys_seconds mark = start; mark <= end; mark += 30min) {
    for (sys_seconds moment = mark - 3s; moment < mark + 3s; ++moment) {
      if (moment >= start && moment < end && !isAsleepAt(moment)) {
        second(onTheWall(moment));
      }
    }
  }
}

}  // namespace zelvane::scheduler
