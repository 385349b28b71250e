#include <cstdlib>
#include <string>

#include "platform/linux/linux_clock.h"
#include "tests/contract/clock_contract.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;
using platform::LocalTime;
using platform::localTimeAt;

// The time zone of the process, for as long as this object lives.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) { set(zone); }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;
  ~TimeZone() {
    unsetenv("TZ");
    tzset();
  }

  static void set(const char* zone) { setenv("TZ", zone, 1); }
};

class LinuxClockBed : public ClockBed {
 public:
  platform::Clock& clock() override { return clock_; }

  // The zone has no summer time: what it shows is the time since 1970 and a fixed step.
  LocalTime onTheWall() const override {
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto local = now + 3h + 30min;
    const auto midnight = std::chrono::floor<std::chrono::days>(local);
    return {std::chrono::year_month_day(midnight), local - midnight};
  }

 private:
  TimeZone zone_{"XXT-3:30"};
  platform::LinuxClock clock_;
};

std::unique_ptr<ClockBed> makeLinuxClockBed() { return std::make_unique<LinuxClockBed>(); }

INSTANTIATE_TEST_SUITE_P(Linux, ClockContract, testing::Values(makeLinuxClockBed));

constexpr const char* kBerlin = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(LinuxClock, FollowsSummerTime) {
  const TimeZone zone(kBerlin);

  EXPECT_EQ(localTimeAt(1774745999), (LocalTime{2026y / 3 / 29, 1h + 59min + 59s}));
  EXPECT_EQ(localTimeAt(1774746000), (LocalTime{2026y / 3 / 29, 3h}));
  EXPECT_EQ(localTimeAt(1792889999), (LocalTime{2026y / 10 / 25, 2h + 59min + 59s}));
  EXPECT_EQ(localTimeAt(1792890000), (LocalTime{2026y / 10 / 25, 2h}));
}

TEST(LinuxClock, AnotherZoneCountsAtOnce) {
  const TimeZone zone("UTC0");
  EXPECT_EQ(localTimeAt(0), (LocalTime{1970y / 1 / 1, 0s}));

  TimeZone::set("XXT+1");

  EXPECT_EQ(localTimeAt(0), (LocalTime{1969y / 12 / 31, 23h}));
}

TEST(LinuxClock, GoesOnAfter2038) {
  const TimeZone zone("UTC0");

  EXPECT_EQ(localTimeAt(4'102'444'799), (LocalTime{2099y / 12 / 31, 23h + 59min + 59s}));
}

}  // namespace
}  // namespace zelvane::test
