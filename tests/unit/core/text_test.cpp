#include "core/text.h"

#include <gtest/gtest.h>

namespace zelvane::core {
namespace {

using namespace std::chrono_literals;

TEST(Text, ATimeOfDayHasTwoDigitsEachOnAClockOf24Hours) {
  EXPECT_EQ(timeText(0s), "00:00:00");
  EXPECT_EQ(timeText(9h + 5min + 7s), "09:05:07");
  EXPECT_EQ(timeText(23h + 59min + 59s), "23:59:59");
}

TEST(Text, CharactersAreCountedAndNotBytes) {
  EXPECT_EQ(characterCount(""), 0U);
  EXPECT_EQ(characterCount("/home/jörg/Übung"), 16U);
}

}  // namespace
}  // namespace zelvane::core
