#include "scheduler/repeated_failure.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_clock.h"

namespace zelvane::scheduler {
namespace {

using namespace std::chrono_literals;
using platform::Error;
using platform::ErrorNumber;

class RepeatedFailureTest : public testing::Test {
 protected:
  bool isNews(ErrorNumber number = ErrorNumber::typeMismatch) {
    return failure.isNews(Error(number), clock.now());
  }

  platform::MemoryClock clock;
  RepeatedFailure failure;
};

TEST_F(RepeatedFailureTest, TheFirstIsNewsAndTheNextIsNot) {
  EXPECT_TRUE(isNews());
  EXPECT_FALSE(isNews());
  EXPECT_FALSE(isNews());
}

TEST_F(RepeatedFailureTest, AnotherIsNews) {
  isNews(ErrorNumber::typeMismatch);

  EXPECT_TRUE(isNews(ErrorNumber::overflow));
  EXPECT_TRUE(isNews(ErrorNumber::typeMismatch));
}

TEST_F(RepeatedFailureTest, TheSameIsNewsWhenItWasOverInBetween) {
  isNews();
  failure.over();

  EXPECT_TRUE(isNews());
}

TEST_F(RepeatedFailureTest, OneThatGoesOnIsNewsAgainAMinuteAfterItsBoxWasClosed) {
  isNews();
  clock.advance(5min);  // the box is open
  EXPECT_FALSE(isNews());

  clock.advance(59s);
  EXPECT_FALSE(isNews());

  clock.advance(1s);
  EXPECT_TRUE(isNews());
  EXPECT_FALSE(isNews());
}

TEST_F(RepeatedFailureTest, AClockThatIsSetBackDoesNotSilenceIt) {
  isNews();
  isNews();

  clock.advance(-3h);

  EXPECT_TRUE(isNews());
}

}  // namespace
}  // namespace zelvane::scheduler
