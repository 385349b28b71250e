// When the program's timers tick.
#include <QApplication>
#include <QElapsedTimer>
#include <functional>

#include <gtest/gtest.h>

#include "ui/qt/mirror/timer_mirror.h"

namespace zelvane::test {
namespace {

using namespace std::chrono_literals;

class QtTimerTest : public testing::Test {
 protected:
  struct Count {
    explicit Count(controls::Event<>& event) {
      event.connect([this] { ++times; });
    }
    int times = 0;
  };

  QtTimerTest() { form.setVisible(true); }

  // Lets the program's events run until `done`.
  static void wait(const std::function<bool()>& done) {
    while (!done()) {
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
  }

  controls::Page page;
  controls::Form form{page, "frmTest", "A window"};
  controls::OpenBoxes boxes;
  QObject window;
};

TEST_F(QtTimerTest, ItTicksAgainAndAgainAndNeverEarly) {
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  Count ticks(control.ticked);
  QElapsedTimer clock;
  clock.start();
  const qt::TimerMirror mirror(control, boxes, form, window);

  wait([&] { return ticks.times == 5; });

  EXPECT_GE(clock.nsecsElapsed(), 5 * 10'000'000);
}

TEST_F(QtTimerTest, EnablingItStartsAWholeIntervalAnew) {
  controls::Timer control(page, "tmrMakeScehduleEnable", 30ms, false);
  Count ticks(control.ticked);
  const qt::TimerMirror mirror(control, boxes, form, window);
  QElapsedTimer clock;
  control.setEnabled(true);
  control.setEnabled(false);
  clock.start();
  control.setEnabled(true);

  wait([&] { return ticks.times == 1; });

  EXPECT_GE(clock.nsecsElapsed(), 30'000'000);
}

TEST_F(QtTimerTest, WhileABoxIsOpenNothingTicks) {
  controls::Timer stopped(page, "tmrSchedule", 1ms, true);
  controls::Timer judge(page, "tmrJudge", 20ms, true);
  Count ticks(stopped.ticked);
  Count passed(judge.ticked);
  const qt::TimerMirror mirror(stopped, boxes, form, window);
  controls::OpenBoxes none;
  const qt::TimerMirror other(judge, none, form, window);

  {
    const controls::OpenBoxes::Opening opening(boxes);
    wait([&] { return passed.times == 2; });
    EXPECT_EQ(ticks.times, 0);
  }

  wait([&] { return ticks.times > 0; });
}

TEST_F(QtTimerTest, ADisabledTimerDoesNotTick) {
  controls::Timer disabled(page, "tmrSchedule", 1ms, true);
  controls::Timer judge(page, "tmrJudge", 20ms, true);
  Count ticks(disabled.ticked);
  Count passed(judge.ticked);
  const qt::TimerMirror mirror(disabled, boxes, form, window);
  const qt::TimerMirror other(judge, boxes, form, window);

  disabled.setEnabled(false);
  wait([&] { return passed.times == 2; });

  EXPECT_EQ(ticks.times, 0);
}

TEST_F(QtTimerTest, WhileNobodySeesItsWindowItTicksFourTimesASecondAtMost) {
  form.setState(controls::Form::State::minimised);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  Count ticks(control.ticked);
  QElapsedTimer clock;
  clock.start();
  const qt::TimerMirror mirror(control, boxes, form, window);

  wait([&] { return ticks.times == 2; });

  EXPECT_GE(clock.nsecsElapsed(), 2 * 250'000'000);
}

TEST_F(QtTimerTest, WhileNobodySeesItsWindowItStillTicksWithinEachSecond) {
  form.setVisible(false);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Timer second(page, "tmrSecond", 1000ms, true);
  Count ticks(control.ticked);
  Count passed(second.ticked);
  const qt::TimerMirror mirror(control, boxes, form, window);
  const qt::TimerMirror other(second, boxes, form, window);

  wait([&] { return passed.times == 1; });

  EXPECT_GE(ticks.times, 1);
}

TEST_F(QtTimerTest, WhenItsWindowIsSeenAgainItWaitsNoLongerThanItsInterval) {
  form.setState(controls::Form::State::minimised);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Timer judge(page, "tmrJudge", 100ms, true);
  Count ticks(control.ticked);
  Count passed(judge.ticked);
  const qt::TimerMirror mirror(control, boxes, form, window);

  form.setState(controls::Form::State::normal);
  const qt::TimerMirror other(judge, boxes, form, window);
  wait([&] { return passed.times == 1; });

  EXPECT_GE(ticks.times, 1);
}

TEST_F(QtTimerTest, ANewCaptionOfItsWindowDoesNotMakeItWaitAnew) {
  form.setState(controls::Form::State::minimised);
  controls::Timer control(page, "tmrSchedule", 10ms, true);
  controls::Timer caption(page, "tmrCaption", 300ms, true);
  Count ticks(control.ticked);
  Count passed(caption.ticked);
  caption.ticked.connect([this] { form.setCaption(form.caption() + "."); });
  const qt::TimerMirror mirror(control, boxes, form, window);
  const qt::TimerMirror other(caption, boxes, form, window);

  wait([&] { return passed.times == 2; });

  EXPECT_GE(ticks.times, 2);
}

}  // namespace
}  // namespace zelvane::test
