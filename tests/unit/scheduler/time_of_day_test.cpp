#include "scheduler/time_of_day.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace zelvane::scheduler {
namespace {

using namespace std::chrono_literals;

TEST(TimeOfDay, IsReadFromTwoDigitsEach) {
  EXPECT_EQ(parseTimeOfDay("00:00:00"), 0s);
  EXPECT_EQ(parseTimeOfDay("09:05:07"), 9h + 5min + 7s);
  EXPECT_EQ(parseTimeOfDay("23:59:59"), 23h + 59min + 59s);
}

TEST(TimeOfDay, AnythingElseIsATypeMismatch) {
  for (const char* text : {"", "##:##:##", "9:05:07", "09:05", "09:05:07 ", "09.05.07", "24:00:00",
                           "23:60:00", "23:59:60", "-1:00:00", "09:05:0x", "Null"}) {
    try {
      parseTimeOfDay(text);
      ADD_FAILURE() << text;
    } catch (const platform::Error& error) {
      EXPECT_EQ(error.number(), platform::ErrorNumber::typeMismatch) << text;
    }
  }
}

TEST(TimeOfDay, HoursAreCountedAsTheyStrikeAndNotAsTheyPass) {
  EXPECT_EQ(hoursBetween(10h + 45min, 10h + 59min + 59s), 0);
  EXPECT_EQ(hoursBetween(10h + 45min, 11h), 1);
  EXPECT_EQ(hoursBetween(10h + 45min, 12h), 2);
  EXPECT_EQ(hoursBetween(10h + 45min, 12h + 45min), 2);
}

TEST(TimeOfDay, AnEarlierTimeIsANegativeNumberOfHoursAway) {
  EXPECT_EQ(hoursBetween(23h + 10min, 5min), -23);
  EXPECT_EQ(hoursBetween(12h + 1min, 12h), 0);
  EXPECT_EQ(hoursBetween(12h, 11h + 59min + 59s), -1);
}

}  // namespace
}  // namespace zelvane::scheduler
