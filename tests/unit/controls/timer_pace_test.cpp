#include "core/controls/timer_pace.h"

#include <gtest/gtest.h>

namespace zelvane::controls {
namespace {

using namespace std::chrono_literals;

class TimerPaceTest : public testing::Test {
 protected:
  TimerPaceTest() { form.setVisible(true); }

  Page page;
  Form form{page, "frmMain", "Zelvane"};
  Timer fast{page, "tmrSchedule", 10ms, true};
  Timer slow{page, "tmrMakeScehduleEnable", 1000ms, true};
};

TEST_F(TimerPaceTest, WhileTheWindowIsSeenItIsTheInterval) {
  EXPECT_EQ(paceOf(fast, form), 10ms);
  EXPECT_EQ(paceOf(slow, form), 1000ms);
}

TEST_F(TimerPaceTest, WhileItIsMinimisedOrHiddenItIsAQuarterOfASecondAtLeast) {
  form.setState(Form::State::minimised);
  EXPECT_EQ(paceOf(fast, form), 250ms);
  EXPECT_EQ(paceOf(slow, form), 1000ms);

  form.setState(Form::State::normal);
  form.setVisible(false);
  EXPECT_EQ(paceOf(fast, form), 250ms);
  EXPECT_EQ(paceOf(slow, form), 1000ms);
}

}  // namespace
}  // namespace zelvane::controls
