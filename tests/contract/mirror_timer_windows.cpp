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

  Win32TimerTest() { form.setVisible(true); }

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
  window.make<win32::TimerMirror>(control, boxes, form);

  wait([&] { return ticks.times == 5; });

  EXPECT_GE(Clock::now() - start, 5 * 10ms);
}

TEST_F(Win32TimerTest, EnablingItStartsAWholeIntervalAnew) {
  controls::Timer control(page, "tmrMakeScehduleEnable", 30ms, false);
  const Count ticks(control.ticked);
  window.make<win32::TimerMirror>(control, boxes, form);
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
  window.make<win32::TimerMirror>(stopped, boxes, form);
  controls::OpenBoxes none;
  window.make<win32::TimerMirror>(judge, none, form);

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
  window.make<win32::TimerMirror>(disabled, boxes, form);
  window.make<win32::TimerMirror>(judge, boxes, form);

  disabled.setEnabled(false);
  wait([&] { return passed.times == 2; });

  EXPECT_EQ(ticks.times, 0);
}

TEST_F(Win32TimerTest, WhileNobodySeesItsWindowItStillTicksWithinEachSecond) {
  form.setVisible(false);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Timer second(page, "tmrSecond", 1000ms, true);
  const Count ticks(control.ticked);
  const Count passed(second.ticked);
  window.make<win32::TimerMirror>(control, boxes, form);
  window.make<win32::TimerMirror>(second, boxes, form);

  wait([&] { return passed.times == 1; });

  EXPECT_GE(ticks.times, 1);
}

TEST_F(Win32TimerTest, WhileNobodySeesItsWindowOneTickInEachSecondOfTheClockIsEnough) {
  form.setState(controls::Form::State::minimised);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Timer judge(page, "tmrJudge", 1500ms, true);
  const Count ticks(control.ticked);
  const Count passed(judge.ticked);
  window.make<win32::TimerMirror>(control, boxes, form);
  window.make<win32::TimerMirror>(judge, boxes, form);

  wait([&] { return passed.times == 1; });

  EXPECT_GE(ticks.times, 2);
  EXPECT_LE(ticks.times, 4);
}

TEST_F(Win32TimerTest, WhenItsWindowIsSeenAgainItWaitsNoLongerThanItsInterval) {
  form.setState(controls::Form::State::minimised);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Timer judge(page, "tmrJudge", 100ms, true);
  const Count ticks(control.ticked);
  const Count passed(judge.ticked);
  window.make<win32::TimerMirror>(control, boxes, form);

  form.setState(controls::Form::State::normal);
  window.make<win32::TimerMirror>(judge, boxes, form);
  wait([&] { return passed.times == 1; });

  EXPECT_GE(ticks.times, 1);
}

TEST_F(Win32TimerTest, ANewCaptionOfItsWindowDoesNotMakeItWaitAnew) {
  form.setState(controls::Form::State::minimised);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Form seen(page, "frmSeen", "");
  seen.setVisible(true);
  controls::Timer caption(page, "tmrCaption", 100ms, true);
  const Count ticks(control.ticked);
  const Count passed(caption.ticked);
  caption.ticked.connect([this] { form.setCaption(form.caption() + "."); });
  window.make<win32::TimerMirror>(control, boxes, form);
  window.make<win32::TimerMirror>(caption, boxes, seen);

  wait([&] { return passed.times == 4; });

  EXPECT_GE(ticks.times, 1);
}

}  // namespace
}  // namespace zelvane::test
