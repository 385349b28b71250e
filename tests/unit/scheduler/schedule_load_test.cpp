// What becomes of a stored schedule.
#include <ostream>

#include "platform/error.h"
#include "scheduler/schedule_settings.h"
#include "tests/unit/scheduler/schedule_test.h"

namespace zelvane::scheduler {
namespace {

using std::chrono::year;

class ScheduleLoadTest : public ScheduleTest {
 protected:
  // Something of each key, for the kind that uses most of them.
  void storeSchedule(const std::string& kind) {
    store("RunOn", kind);
    store("Date", "2026-12-24");
    store("Time", "08:30:00");
    store("RunAfter", "5");
    store("LastRunTime", "10:45:00");
  }

  ScheduleSettings schedule{page, settings, desktop.ports(), handler};
};

TEST_F(ScheduleLoadTest, TheEmptyPickersShowThePresentMoment) {
  desktop.clock.set(at(year{2026} / 11 / 22, 3h + 4min + 5s));

  schedule.emptyPickers();

  EXPECT_EQ(page.dtpScheduleDate.value(), std::nullopt);
  EXPECT_EQ(page.dtpScheduleDate.shown(), desktop.clock.now());
  EXPECT_EQ(page.dtpScheduleTime.value(), std::nullopt);
  EXPECT_EQ(page.dtpScheduleTime.shown(), desktop.clock.now());
}

TEST_F(ScheduleLoadTest, AFirstStartIsDailyAndLeavesTheRestAsItIs) {
  schedule.emptyPickers();
  const auto shown = desktop.clock.now();
  desktop.clock.advance(1h);

  schedule.load();

  EXPECT_EQ(page.cmbDays.listIndex(), kDaily);
  EXPECT_EQ(page.dtpScheduleDate.shown(), shown);
  EXPECT_EQ(page.dtpScheduleTime.shown(), shown);
  EXPECT_EQ(page.txtHours.text(), "2");
  EXPECT_EQ(page.lblLastRunTime.caption(), "##:##:##");
  EXPECT_TRUE(areHoursEnabled());
}

TEST_F(ScheduleLoadTest, ARunThatWasStoredWithoutAScheduleIsNotLoaded) {
  store("LastRunTime", "10:45:00");

  schedule.load();

  EXPECT_EQ(page.lblLastRunTime.caption(), "##:##:##");
}

TEST_F(ScheduleLoadTest, EveryKindComesBackAsItWasApplied) {
  for (int kind = kMonday; kind <= kNever; ++kind) {
    page.cmbDays.setListIndex(kind);
    if (page.dtpScheduleDate.enabled()) {
      page.dtpScheduleDate.setValue(at(year{2028} / 2 / 29, 12h));
    }
    if (page.dtpScheduleTime.enabled()) {
      page.dtpScheduleTime.setValue(at(year{2026} / 11 / 21, 23h + 59min + 59s));
    }
    page.cmdApply.click();
    const bool hoursEnabled = page.txtHours.enabled();

    SchedulePage other;
    ScheduleSettings next(other, settings, desktop.ports(), handler);
    next.emptyPickers();
    next.load();

    EXPECT_EQ(other.cmbDays.listIndex(), kind);
    EXPECT_EQ(other.dtpScheduleDate.value().has_value(), page.dtpScheduleDate.value().has_value());
    EXPECT_EQ(other.dtpScheduleDate.value().value_or(at({})).date,
              page.dtpScheduleDate.value().value_or(at({})).date);
    EXPECT_EQ(other.dtpScheduleTime.value(), page.dtpScheduleTime.value());
    EXPECT_EQ(other.txtHours.enabled(), hoursEnabled);
    EXPECT_EQ(other.dtpScheduleDate.enabled(), page.dtpScheduleDate.enabled());
    EXPECT_EQ(other.dtpScheduleTime.enabled(), page.dtpScheduleTime.enabled());
  }
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(ScheduleLoadTest, AStoredDateAndTimeComesBackWithAllItsParts) {
  storeSchedule("9");

  schedule.load();

  EXPECT_EQ(page.cmbDays.text(), "Date & Time");
  EXPECT_EQ(page.dtpScheduleDate.value()->date, year{2026} / 12 / 24);
  EXPECT_EQ(page.dtpScheduleTime.value()->timeOfDay, 8h + 30min);
  EXPECT_EQ(page.txtHours.text(), "5");
  EXPECT_EQ(page.lblLastRunTime.caption(), "10:45:00");
  EXPECT_TRUE(areHoursDisabled());
}

TEST_F(ScheduleLoadTest, AStoredNeverDisablesTheHours) {
  store("RunOn", "10");

  schedule.load();

  EXPECT_EQ(page.cmbDays.listIndex(), kNever);
  EXPECT_TRUE(areHoursDisabled());
}

TEST_F(ScheduleLoadTest, WhatIsMissingBesideAKindIsEmpty) {
  store("RunOn", "8");
  page.dtpScheduleDate.setValue(at(year{2020} / 1 / 1));
  page.dtpScheduleTime.setValue(at(year{2020} / 1 / 1));

  schedule.load();

  EXPECT_EQ(page.dtpScheduleDate.value(), std::nullopt);
  EXPECT_EQ(page.dtpScheduleDate.shown(), desktop.clock.now());
  EXPECT_EQ(page.dtpScheduleTime.value(), std::nullopt);
  EXPECT_EQ(page.dtpScheduleTime.shown(), desktop.clock.now());
  EXPECT_EQ(page.txtHours.text(), "");
  EXPECT_EQ(page.lblLastRunTime.caption(), "");
}

TEST_F(ScheduleLoadTest, MissingHoursOfAWeekdayBecomeTwo) {
  store("RunOn", "0");

  schedule.load();

  EXPECT_EQ(page.txtHours.text(), "2");
}

TEST_F(ScheduleLoadTest, ItLeavesThePageEdited) {
  schedule.load();
  EXPECT_TRUE(isEdited());

  schedule.markApplied();
  storeSchedule("9");
  schedule.load();
  EXPECT_TRUE(isEdited());
}

TEST_F(ScheduleLoadTest, ItStoresNothing) {
  storeSchedule("3");

  schedule.load();

  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(ScheduleLoadTest, AKindIsANumberRoundedLikeAnyOther) {
  storeSchedule(" 8.5 ");

  schedule.load();

  EXPECT_EQ(page.cmbDays.listIndex(), kDate);
}

struct Spoilt {
  std::string key;
  std::string text;
  platform::ErrorNumber error;

  friend void PrintTo(const Spoilt& spoilt, std::ostream* out) {
    *out << spoilt.key << " \"" << spoilt.text << '"';
  }
};

class SpoiltScheduleTest : public ScheduleLoadTest, public testing::WithParamInterface<Spoilt> {};

TEST_P(SpoiltScheduleTest, IsAnErrorAndNothingStoredIsLost) {
  storeSchedule("9");
  store(GetParam().key, GetParam().text);

  try {
    schedule.load();
    ADD_FAILURE();
  } catch (const platform::Error& error) {
    EXPECT_EQ(error.number(), GetParam().error);
  }

  EXPECT_TRUE(desktop.settings.saves().empty());
}

using enum platform::ErrorNumber;

INSTANTIATE_TEST_SUITE_P(
    EachText, SpoiltScheduleTest,
    testing::Values(Spoilt{"RunOn", "abc", typeMismatch}, Spoilt{"RunOn", "", typeMismatch},
                    Spoilt{"RunOn", "40000", overflow}, Spoilt{"RunOn", "11", invalidPropertyValue},
                    Spoilt{"Date", "21.11.2026", typeMismatch}, Spoilt{"Date", "", typeMismatch},
                    Spoilt{"Time", "half past eight", typeMismatch},
                    Spoilt{"Time", "null", typeMismatch}));

TEST_F(ScheduleLoadTest, WhatComesBeforeASpoiltTextIsLoaded) {
  storeSchedule("9");
  store("Time", "half past eight");

  EXPECT_THROW(schedule.load(), platform::Error);

  EXPECT_EQ(page.dtpScheduleDate.value()->date, year{2026} / 12 / 24);
  EXPECT_EQ(page.cmbDays.listIndex(), controls::ComboBox::kNothing);
}

}  // namespace
}  // namespace zelvane::scheduler
