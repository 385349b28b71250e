// The year 2028 as a computer in Berlin lives it, by seconds where something may happen.
#pragma once

#include <chrono>
#include <functional>

#include "platform/local_time.h"

namespace zelvane::scheduler {

// 2028 is a leap year of 366 days: it begins on a Saturday and has 53 Saturdays and 53 Sundays, and
// 52 of the other days. Beside what the calendar does
//
//   29 February          is a Tuesday
//   26 March, Sunday     02:00:00 to 02:59:59 do not come: summer time begins
//   29 October, Sunday   02:00:00 to 02:59:59 come twice: it ends
//
// somebody does this to the computer:
//
//   10 May, Wednesday    set back at 08:45:00 to 08:15:00; put right at noon
//   11 May, Thursday     set forward at 08:15:00 to 08:45:00; put right at noon
//   12 May, Friday       asleep from 07:00:00 to 11:00:00
//
// While it is awake it is asked in the last three seconds before each half hour and in the first
// three after it.
class SimulatedYear {
 public:
  // `second` is called for each of them with what the clock on the wall shows.
  static void live(const std::function<void(const platform::LocalTime&)>& second);
};

}  // namespace zelvane::scheduler
