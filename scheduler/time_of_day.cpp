#include "scheduler/time_of_day.h"

#include "platform/error.h"
#include "scheduler/digits.h"

namespace zelvane::scheduler {

using std::chrono::floor;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

seconds parseTimeOfDay(std::string_view text) {
  const hours hour(digitsAt(text, 0, 2));
  const minutes minute(digitsAt(text, 3, 2));
  const seconds second(digitsAt(text, 6, 2));
  if (text.size() != 8 || text[2] != ':' || text[5] != ':' || hour >= hours(24) ||
      minute >= minutes(60) || second >= seconds(60)) {
    throw platform::Error(platform::ErrorNumber::typeMismatch);
  }
  return hour + minute + second;
}

int hoursBetween(seconds from, seconds to) {
  return static_cast<int>((floor<hours>(to) - floor<hours>(from)).count());
}

}  // namespace zelvane::scheduler
