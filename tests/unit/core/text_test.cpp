#include "core/text.h"

#include <vector>

#include <gtest/gtest.h>

namespace zelvane::core {
namespace {

using namespace std::chrono_literals;

TEST(Text, ATimeOfDayHasTwoDigitsEachOnAClockOf24Hours) {
  EXPECT_EQ(timeText(0s), "00:00:00");
  EXPECT_EQ(timeText(9h + 5min + 7s), "09:05:07");
  EXPECT_EQ(timeText(23h + 59min + 59s), "23:59:59");
}

TEST(Text, TheDaysOfTheWeekHaveTheirEnglishNames) {
  const std::chrono::local_days monday(std::chrono::year(2026) / 11 / 16);
  std::string names;
  for (int day = 0; day < 7; ++day) {
    names += weekdayName(std::chrono::weekday(monday + std::chrono::days(day))) + " ";
  }

  EXPECT_EQ(names, "Monday Tuesday Wednesday Thursday Friday Saturday Sunday ");
}

TEST(Text, CharactersAreCountedAndNotBytes) {
  EXPECT_EQ(characterCount(""), 0U);
  EXPECT_EQ(characterCount("/home/jörg/Übung"), 16U);
}

TEST(Text, TheFirstCharactersAreWholeOnes) {
  EXPECT_EQ(firstCharacters("Übung", 0), "");
  EXPECT_EQ(firstCharacters("Übung", 1), "Ü");
  EXPECT_EQ(firstCharacters("aÜb", 2), "aÜ");
  EXPECT_EQ(firstCharacters("Übung", 5), "Übung");
  EXPECT_EQ(firstCharacters("Übung", 6), "Übung");
}

}  // namespace
}  // namespace zelvane::core
