#include "tests/attack/windows/victim.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/attack/windows/stories.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

using enum Side;

class VictimTest : public testing::Test {
 protected:
  Life liveUntil(const Moment& moment) { return live(kMakeFolders, world, moment); }
  std::string made() const {
    std::string names;
    for (const std::string name : {"a", "b", "c"}) {
      if (folder.has(name)) names += name;
    }
    return names;
  }

  ThrowAwayFolder folder;
  const World world{folder.path().string(), "Software\\ZelvaneTest-victim"};
};

TEST_F(VictimTest, LivesToItsEndAndTellsItsCallsAndSteps) {
  const Life life = live(kMakeFolders, world, std::nullopt);

  EXPECT_FALSE(life.killed);
  EXPECT_EQ(life.steps, 3U);
  EXPECT_EQ(life.calls, std::vector<std::string>(3, "CreateDirectoryW"));
  EXPECT_EQ(made(), "abc");
}

TEST_F(VictimTest, KilledBeforeACallDoesNotMakeIt) {
  const Life life = liveUntil({before, 2});

  EXPECT_TRUE(life.killed);
  EXPECT_EQ(life.steps, 1U);
  EXPECT_EQ(life.calls.size(), 2U);
  EXPECT_EQ(made(), "a");
}

TEST_F(VictimTest, KilledAfterACallMadeItAndNothingMore) {
  const Life life = liveUntil({after, 2});

  EXPECT_TRUE(life.killed);
  EXPECT_EQ(life.steps, 1U);
  EXPECT_EQ(life.calls.size(), 2U);
  EXPECT_EQ(made(), "ab");
}

TEST_F(VictimTest, WithFewerCallsLivesToItsEnd) {
  EXPECT_FALSE(liveUntil({before, 4}).killed);
  EXPECT_EQ(made(), "abc");
}

TEST_F(VictimTest, ThatFailsIsNoVictim) {
  EXPECT_THROW(live(kFail, world, std::nullopt), std::runtime_error);
}

}  // namespace
}  // namespace zelvane::test
