#include "tests/contract/special_folders_contract.h"

#include <optional>

namespace zelvane::test {

using platform::SpecialFolder;

TEST_P(SpecialFoldersContract, TheDocumentsAreWhereTheDesktopSays) {
  bed->makeFolder(bed->home() + "/My Papers");
  bed->setDocuments(bed->home() + "/My Papers");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), bed->home() + "/My Papers");
}

TEST_P(SpecialFoldersContract, APathHasNoClosingSeparator) {
  bed->makeFolder(bed->home() + "/Papers");
  bed->setDocuments(bed->home() + "/Papers//");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), bed->home() + "/Papers");
}

TEST_P(SpecialFoldersContract, AFolderThatIsNotThereIsNoFolderAndIsNotMade) {
  bed->setDocuments(bed->home() + "/Papers");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, AFileIsNoFolder) {
  bed->makeFile(bed->home() + "/Papers");
  bed->setDocuments(bed->home() + "/Papers");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, AFolderThatGoesIsNoFolderFromThenOn) {
  bed->makeFolder(bed->home() + "/Papers");
  bed->setDocuments(bed->home() + "/Papers");
  ASSERT_TRUE(bed->folders().path(SpecialFolder::personal));

  bed->removeFolder(bed->home() + "/Papers");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, TheHomeIsNeverTheDocuments) {
  for (const std::string ending : {"", "/", "//"}) {
    bed->setDocuments(bed->home() + ending);

    EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt) << ending;
  }
}

TEST_P(SpecialFoldersContract, AFolderThatHoldsTheHomeIsNeverTheDocuments) {
  bed->setDocuments(bed->home().substr(0, bed->home().rfind('/')));
  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);

  bed->setDocuments("/");
  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, AFolderWhoseNameOnlyBeginsLikeTheHomesMayBeTheDocuments) {
  bed->makeFolder(bed->home() + "-papers");
  bed->setDocuments(bed->home() + "-papers");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), bed->home() + "-papers");
}

TEST_P(SpecialFoldersContract, TheTemporaryPathHasOneClosingSeparator) {
  bed->makeFolder(bed->home() + "/tmp");

  bed->setTemporary(bed->home() + "/tmp");
  EXPECT_EQ(bed->folders().temporaryPath(), bed->home() + "/tmp/");

  bed->setTemporary(bed->home() + "/tmp//");
  EXPECT_EQ(bed->folders().temporaryPath(), bed->home() + "/tmp/");
}

TEST_P(SpecialFoldersContract, TheHomeIsNeverTheTemporaryFolder) {
  bed->setTemporary(bed->home());

  EXPECT_NE(bed->folders().temporaryPath(), bed->home() + "/");
}

}  // namespace zelvane::test
