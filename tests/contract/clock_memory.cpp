#include "platform/memory/memory_clock.h"
#include "tests/contract/clock_contract.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;
using platform::LocalTime;
using platform::MemoryClock;

class MemoryClockBed : public ClockBed {
 public:
  MemoryClockBed() { clock_.set(onTheWall()); }
  platform::Clock& clock() override { return clock_; }
  LocalTime onTheWall() const override { return {2026y / 11 / 21, 10h + 45min + 3s}; }

 private:
  MemoryClock clock_;
};

std::unique_ptr<ClockBed> makeMemoryClockBed() { return std::make_unique<MemoryClockBed>(); }

INSTANTIATE_TEST_SUITE_P(Memory, ClockContract, testing::Values(makeMemoryClockBed));

TEST(MemoryClock, StandsStillUntilItIsAdvanced) {
  MemoryClock clock;
  clock.set({2026y / 11 / 21, 10h});

  EXPECT_EQ(clock.now(), (LocalTime{2026y / 11 / 21, 10h}));
  clock.advance(1s);
  EXPECT_EQ(clock.now(), (LocalTime{2026y / 11 / 21, 10h + 1s}));
}

TEST(MemoryClock, TheDateMovesOnAtMidnight) {
  MemoryClock clock;
  clock.set({2026y / 12 / 31, 23h + 59min + 59s});

  clock.advance(1s);

  EXPECT_EQ(clock.now(), (LocalTime{2027y / 1 / 1, 0s}));
}

TEST(MemoryClock, TheDateMovesOverTheLeapDay) {
  MemoryClock clock;
  clock.set({2028y / 2 / 28, 12h});

  clock.advance(24h);

  EXPECT_EQ(clock.now(), (LocalTime{2028y / 2 / 29, 12h}));
}

TEST(MemoryClock, ANegativeStepMovesTheDateBack) {
  MemoryClock clock;
  clock.set({2026y / 3 / 1, 0s});

  clock.advance(-1s);

  EXPECT_EQ(clock.now(), (LocalTime{2026y / 2 / 28, 23h + 59min + 59s}));
}

}  // namespace
}  // namespace zelvane::test
