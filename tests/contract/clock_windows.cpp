#include <cstdint>

#include "platform/error.h"
#include "platform/windows/windows_clock.h"
#include "tests/contract/clock_contract.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;
using platform::LocalTime;
using platform::localTimeAt;
using platform::WindowsClock;

// The system's moments are 100 ns long and begin in 1601.
constexpr std::int64_t kMomentsInSecond = 10'000'000;
constexpr auto kFirstDay = std::chrono::sys_days(1601y / 1 / 1);

std::int64_t count(const FILETIME& moment) {
  return static_cast<std::int64_t>(std::uint64_t{moment.dwHighDateTime} << 32U |
                                   moment.dwLowDateTime);
}

FILETIME momentAt(std::chrono::sys_seconds time, std::int64_t more = 0) {
  const std::int64_t moments = (time - kFirstDay).count() * kMomentsInSecond + more;
  return {static_cast<DWORD>(moments & 0xFFFF'FFFF), static_cast<DWORD>(moments >> 32)};
}

class WindowsClockBed : public ClockBed {
 public:
  platform::Clock& clock() override { return clock_; }

  // The system's present step from the universal time, counted from its first moment on.
  LocalTime onTheWall() const override {
    FILETIME present{};
    FILETIME local{};
    GetSystemTimePreciseAsFileTime(&present);
    FileTimeToLocalFileTime(&present, &local);
    const auto time = kFirstDay + std::chrono::seconds(count(local) / kMomentsInSecond);
    const auto midnight = std::chrono::floor<std::chrono::days>(time);
    return {std::chrono::year_month_day(midnight), time - midnight};
  }

 private:
  WindowsClock clock_;
};

std::unique_ptr<ClockBed> makeWindowsClockBed() { return std::make_unique<WindowsClockBed>(); }

INSTANTIATE_TEST_SUITE_P(Windows, ClockContract, testing::Values(makeWindowsClockBed));

// Summer time from the last Sunday of March, 2 o'clock, to the last of October, 3 o'clock.
TIME_ZONE_INFORMATION berlin() {
  TIME_ZONE_INFORMATION zone{};
  zone.Bias = -60;
  zone.DaylightBias = -60;
  zone.DaylightDate.wMonth = 3;
  zone.DaylightDate.wDay = 5;
  zone.DaylightDate.wHour = 2;
  zone.StandardDate.wMonth = 10;
  zone.StandardDate.wDay = 5;
  zone.StandardDate.wHour = 3;
  return zone;
}

TEST(WindowsClock, FollowsSummerTime) {
  const TIME_ZONE_INFORMATION zone = berlin();
  const auto spring = std::chrono::sys_days(2026y / 3 / 29) + 1h;
  const auto autumn = std::chrono::sys_days(2026y / 10 / 25) + 1h;

  EXPECT_EQ(localTimeAt(momentAt(spring - 1s), &zone),
            (LocalTime{2026y / 3 / 29, 1h + 59min + 59s}));
  EXPECT_EQ(localTimeAt(momentAt(spring), &zone), (LocalTime{2026y / 3 / 29, 3h}));
  EXPECT_EQ(localTimeAt(momentAt(autumn - 1s), &zone),
            (LocalTime{2026y / 10 / 25, 2h + 59min + 59s}));
  EXPECT_EQ(localTimeAt(momentAt(autumn), &zone), (LocalTime{2026y / 10 / 25, 2h}));
}

TEST(WindowsClock, CutsAndDoesNotRound) {
  const TIME_ZONE_INFORMATION universal{};
  const auto noon = std::chrono::sys_days(2026y / 11 / 21) + 12h;

  EXPECT_EQ(localTimeAt(momentAt(noon, kMomentsInSecond - 1), &universal),
            (LocalTime{2026y / 11 / 21, 12h}));
}

TEST(WindowsClock, GoesOnAfter2038) {
  const TIME_ZONE_INFORMATION universal{};
  const auto last = std::chrono::sys_days(2100y / 1 / 1) - 1s;

  EXPECT_EQ(localTimeAt(momentAt(last), &universal),
            (LocalTime{2099y / 12 / 31, 23h + 59min + 59s}));
}

TEST(WindowsClock, AMomentThatTheSystemDoesNotKnowIsAnError) {
  EXPECT_THROW(localTimeAt(FILETIME{0, 0x8000'0000}), platform::Error);
}

}  // namespace
}  // namespace zelvane::test
