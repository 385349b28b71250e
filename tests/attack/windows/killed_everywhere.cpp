#include "tests/attack/windows/killed_everywhere.h"

#include <gtest/gtest.h>

namespace zelvane::test {

void killEverywhere(const Story& story, std::size_t stride, const Prepared& prepared,
                    const Judge& judge) {
  const Life whole = live(story, prepared(), std::nullopt);
  ASSERT_GT(whole.steps, 0U);
  ASSERT_GE(whole.calls.size(), whole.steps * 3);
  for (std::size_t call = 1; call <= whole.calls.size(); call += stride) {
    for (const Side side : {Side::before, Side::after}) {
      SCOPED_TRACE((side == Side::before ? "before " : "after ") + std::to_string(call) + ": " +
                   whole.calls[call - 1]);
      const World world = prepared();

      const Life life = live(story, world, Moment{side, call});

      ASSERT_TRUE(life.killed);
      ASSERT_EQ(life.calls.size(), call);
      ASSERT_LT(life.steps, whole.steps);
      judge(world, life, side);
      if (testing::Test::HasFailure()) return;
    }
  }
}

}  // namespace zelvane::test
