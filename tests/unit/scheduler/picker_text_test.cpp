#include "scheduler/picker_text.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace zelvane::scheduler {
namespace {

using namespace std::chrono_literals;
using std::chrono::year;

class PickerTextTest : public testing::Test {
 protected:
  using Kind = controls::DatePicker::Kind;

  static constexpr platform::LocalTime kShown{year{2026} / 11 / 21, 12h};

  controls::Page page;
  controls::DatePicker date{page, "dtpScheduleDate", Kind::date};
  controls::DatePicker time{page, "dtpScheduleTime", Kind::time};
};

TEST_F(PickerTextTest, ADateAndATimeHaveOnePlainForm) {
  date.setValue({{year{2028} / 2 / 29, 8h}});
  time.setValue({{year{2028} / 2 / 29, 8h + 5min + 9s}});

  EXPECT_EQ(textOf(date), "2028-02-29");
  EXPECT_EQ(textOf(time), "08:05:09");
}

TEST_F(PickerTextTest, AnEmptyPickerIsNull) {
  time.setValue(kShown);
  time.setValue(std::nullopt);

  EXPECT_EQ(textOf(date), "Null");
  EXPECT_EQ(textOf(time), "Null");
}

TEST_F(PickerTextTest, AYearBeforeTheYear1000StillHasFourDigits) {
  date.setValue({{year{987} / 6 / 5, 0s}});

  EXPECT_EQ(textOf(date), "0987-06-05");
  EXPECT_EQ(parseValue("0987-06-05", date).date, year{987} / 6 / 5);
}

TEST_F(PickerTextTest, WhatATextDoesNotSayIsAsThePickerShowsIt) {
  date.setValue(kShown);

  EXPECT_EQ(parseValue("2027-01-02", date), (platform::LocalTime{year{2027} / 1 / 2, 12h}));
  EXPECT_EQ(parseValue("08:30:00", date), (platform::LocalTime{year{2026} / 11 / 21, 8h + 30min}));
  EXPECT_EQ(parseValue("2027-01-02 08:30:00", date),
            (platform::LocalTime{year{2027} / 1 / 2, 8h + 30min}));
}

TEST_F(PickerTextTest, ATextThatIsNeitherDateNorTimeIsATypeMismatch) {
  for (const char* text : {"", " ", "abc", "21.11.2026", "11/21/2026", "2026-13-01", "2026-02-29",
                           "2026-00-10", "2026-11-00", "26-11-21", "8:30", "08:30:00 PM",
                           "2026-11-21 ", "2026-11-21T08:30:00", "99999-01-01", "null"}) {
    try {
      parseValue(text, time);
      ADD_FAILURE() << text;
    } catch (const platform::Error& error) {
      EXPECT_EQ(error.number(), platform::ErrorNumber::typeMismatch) << text;
    }
  }
}

}  // namespace
}  // namespace zelvane::scheduler
