// When the program's timers tick.
#include <chrono>
#include <functional>

#include <windows.h>

#include "tests/contract/mirror_bed_windows.h"
#include "ui/win32/message_loop.h"
#include "ui/win32/mirror/timer_mirror.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;

class Win32TimerTest : public Win32MirrorTest {
 protected:
  using Clock = std::chrono::steady_clock;

  // Lets the program's events run until `done`.
  static void wait(const std::function<bool()>& done) {
    MSG message;
    while (!done() && GetMessageW(&message, nullptr, 0, 0) > 0) {
      win32::deliver(message);
    }
  }

  controls::OpenBoxes boxes;
};

TEST_F(Win32TimerTest, ItTicksAgainAndAgainAndNeverEarly) {
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  const Count ticks(control.ticked);
  const auto start = Clock::now();
  window.make<win32::TimerMirror>(control, boxes);

  wait([&] { return ticks.times == 5; });

  EXPECT_GE(Clock::now() - start, 5 * 10ms);
}

TEST_F(Win32TimerTest, EnablingItStartsAWholeIntervalAnew) {
  controls::Timer control(page, "tmrMakeScehduleEnable", 30ms, false);
  const Count ticks(control.ticked);
  window.make<win32::TimerMirror>(control, boxes);
  control.setEnabled(true);
  control.setEnabled(false);
  const auto start = Clock::now();
  control.setEnabled(true);

  wait([&] { return ticks.times == 1; });

  EXPECT_GE(Clock::now() - start, 30ms);
}

TEST_F(Win32TimerTest, WhileABoxIsOpenNothingTicks) {
  controls::Timer stopped(page, "tmrSchedule", 1ms, true);
  controls::Timer judge(page, "tmrJudge", 20ms, true);
  const Count ticks(stopped.ticked);
  const Count passed(judge.ticked);
  window.make<win32::TimerMirror>(stopped, boxes);
  controls::OpenBoxes none;
  window.make<win32::TimerMirror>(judge, none);

  {
    const controls::OpenBoxes::Opening opening(boxes);
    wait([&] { return passed.times == 2; });
    EXPECT_EQ(ticks.times, 0);
  }

  wait([&] { return ticks.times > 0; });
}

TEST_F(Win32TimerTest, ADisabledTimerDoesNotTick) {
  controls::Timer disabled(page, "tmrSchedule", 1ms, true);
  controls::Timer judge(page, "tmrJudge", 20ms, true);
  const Count ticks(disabled.ticked);
  const Count passed(judge.ticked);
  window.make<win32::TimerMirror>(disabled, boxes);
  window.make<win32::TimerMirror>(judge, boxes);

  disabled.setEnabled(false);
  wait([&] { return passed.times == 2; });

  EXPECT_EQ(ticks.times, 0);
}

}  // namespace
}  // namespace zelvane::test
