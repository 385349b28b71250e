#include <chrono>
#include <ostream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/error.h"
#include "tests/attack/zoo/erasing.h"
#include "tests/attack/zoo/outcomes.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {

// How GoogleTest shows it.
static void PrintTo(const ZooCase& zooCase, std::ostream* out) { *out << zooCase.title; }

namespace {

using Options = platform::LinuxFolderTree::Options;

// All checks made by the program itself, all looks taken, and a way down of three descriptors.
const Options kOldAndCareful{.way = {.mostDescriptors = 3, .askKernel = false},
                             .listingIsGood = std::chrono::milliseconds(0)};

// True where the root was accepted.
bool isErased(const std::string& root, const Options& options) {
  Meanwhile nothing;
  try {
    erase(root, nothing, options);
    return true;
  } catch (const platform::Error&) {
    return false;
  }
}

void expectAsItShould(const ZooCase& zooCase, const ThrowAwayFolder& folder,
                      const Options& options = {}) {
  ZooWorld world(folder.path());
  zooCase.build(world);
  const Manifest before = manifestOf(world.folder());
  world.meetOthers();

  const bool erased = isErased(world.path(zooCase.erased), options);

  world.endOthers();
  EXPECT_EQ(erased, !zooCase.refused);
  EXPECT_TRUE(asItShould(outcomeOf(zooCase, world.kept(), before, manifestOf(world.folder()))));
}

class Zoo : public testing::TestWithParam<ZooCase> {
 protected:
  static void eraseIt(const Options& options) {
    if (GetParam().needs == Needs::permissions && geteuid() == 0) {
      GTEST_SKIP() << "root may read and write everything";
    }
    try {
      expectAsItShould(GetParam(), ThrowAwayFolder(), options);
    } catch (const CannotBuild& reason) {
      GTEST_SKIP() << reason.what();
    }
  }
};

TEST_P(Zoo, ErasingTakesWhatIsInTheRootAndNothingElse) { eraseIt({}); }

TEST_P(Zoo, ErasingWithoutTheKernelsHelpTakesTheSame) { eraseIt(kOldAndCareful); }

const auto kNameOf = [](const testing::TestParamInfo<ZooCase>& info) { return info.param.name; };

INSTANTIATE_TEST_SUITE_P(Links, Zoo, testing::ValuesIn(linkCases()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Mounts, Zoo, testing::ValuesIn(mountCases()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Names, Zoo, testing::ValuesIn(nameCases()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Permissions, Zoo, testing::ValuesIn(permissionCases()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Kinds, Zoo, testing::ValuesIn(kindCases()), kNameOf);
INSTANTIATE_TEST_SUITE_P(InUse, Zoo, testing::ValuesIn(inUseCases()), kNameOf);
INSTANTIATE_TEST_SUITE_P(Races, Zoo, testing::ValuesIn(raceCases(100)), kNameOf);

// In memory a swap takes a millionth of a second, so that there is one between any two steps.
class ZooMountedInMemory : public testing::Test {
 protected:
  void SetUp() override {
    if (!mounts.whyNot().empty()) GTEST_SKIP() << mounts.whyNot();
    mounts.mountVolume(folder.path());
  }

  ThrowAwayFolder folder;
  PrivateMounts mounts;
};

TEST_F(ZooMountedInMemory, TenThousandFoldersSwappedForLinksLoseNothingOutside) {
  expectAsItShould(foldersSwappedForLinks(10'000), folder);
}

TEST_F(ZooMountedInMemory, TenThousandFilesSwappedForLinksLoseNothingOutside) {
  expectAsItShould(filesSwappedForLinks(10'000), folder);
}

TEST_F(ZooMountedInMemory, AFolderThatGrowsIsErasedToItsEnd) {
  expectAsItShould(folderThatGrows(), folder);
}

TEST(ZooBigVolume, TenThousandSwapsOnTheDiskLoseNothingOutside) {
  expectAsItShould(foldersSwappedForLinks(10'000), ThrowAwayFolder());
  expectAsItShould(filesSwappedForLinks(10'000), ThrowAwayFolder());
}

}  // namespace
}  // namespace zelvane::test
