// Files that belong to somebody else, where this user may make some: root alone may, who then gives
// up all that root may beyond it.
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/attack/zoo/erasing.h"
#include "tests/attack/zoo/outcomes.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

class OtherOwners : public testing::Test {
 protected:
  void makeTheirs(const std::string& name, unsigned mode) {
    constexpr uid_t kNobody = 65534;
    ASSERT_EQ(chown(world.path(name).c_str(), kNobody, kNobody), 0);
    world.permissions(name, mode);
  }

  void eraseAsAnOrdinaryUser() {
    before = manifestOf(world.folder());
    ChildProcess ordinary([&](const Say& say) {
      giveUpPrivileges();
      Meanwhile nothing;
      erase(world.path("root"), nothing);
      say("done");
    });
    ASSERT_EQ(ordinary.hearLine(), "done");
  }

  testing::AssertionResult restIsUntouched() {
    return asItShould(outcomeOf(zooCase, world.kept(), before, manifestOf(world.folder())));
  }

  static bool mayGiveAway(const std::string& path) { return chown(path.c_str(), 65534, 0) == 0; }

  ThrowAwayFolder folder;
  ZooWorld world{folder.path()};
  ZooCase zooCase;
  Manifest before;
};

TEST_F(OtherOwners, FromASharedStickyFolderOnlyOnesOwnFilesGo) {
  if (!mayGiveAway(world.path("outside/file"))) GTEST_SKIP() << "only root may give files away";
  world.file("root/shared/own");
  world.file("root/shared/theirs");
  makeTheirs("root/shared/theirs", 0666);
  makeTheirs("root/shared", 01777);
  zooCase.stays = {"root/shared/theirs"};

  eraseAsAnOrdinaryUser();

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(OtherOwners, FromAFolderOfSomebodyElsesNothingGoesAndItsPermissionsStay) {
  if (!mayGiveAway(world.path("outside/file"))) GTEST_SKIP() << "only root may give files away";
  world.file("root/theirs/own");
  world.file("root/theirs/inner/own");
  makeTheirs("root/theirs/inner", 0555);
  makeTheirs("root/theirs", 0755);
  zooCase.stays = {"root/theirs"};

  eraseAsAnOrdinaryUser();

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(OtherOwners, SomebodyElsesFilesInOnesOwnFolderGo) {
  if (!mayGiveAway(world.path("outside/file"))) GTEST_SKIP() << "only root may give files away";
  world.file("root/folder/theirs");
  makeTheirs("root/folder/theirs", 0400);

  eraseAsAnOrdinaryUser();

  EXPECT_TRUE(restIsUntouched());
}

}  // namespace
}  // namespace zelvane::test
