#include <gtest/gtest.h>

#include "tests/attack/windows/stories.h"

int main(int count, char** arguments) {
  zelvane::test::liveIfVictim(zelvane::test::allStories());
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
