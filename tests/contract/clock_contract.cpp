#include "tests/contract/clock_contract.h"

namespace zelvane::test {
namespace {

TEST_P(ClockContract, ShowsWhatTheClockOnTheWallShows) {
  const auto before = order(bed->onTheWall());
  const auto now = order(clock.now());
  const auto after = order(bed->onTheWall());

  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

TEST_P(ClockContract, TheDateExistsAndTheTimeIsWithinADay) {
  const platform::LocalTime now = clock.now();

  EXPECT_TRUE(now.date.ok());
  EXPECT_GE(now.timeOfDay, std::chrono::seconds(0));
  EXPECT_LT(now.timeOfDay, std::chrono::days(1));
}

}  // namespace
}  // namespace zelvane::test
