#include "tests/contract/special_folders_contract.h"

#include <optional>

namespace zelvane::test {

using platform::SpecialFolder;

TEST_P(SpecialFoldersContract, TheDocumentsAreWhereTheDesktopSays) {
  bed->makeFolder(inHome("My Papers"));
  bed->setDocuments(inHome("My Papers"));

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), inHome("My Papers"));
}

TEST_P(SpecialFoldersContract, APathHasNoClosingSeparator) {
  bed->makeFolder(inHome("Papers"));
  bed->setDocuments(inHome("Papers") + separator + separator);

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), inHome("Papers"));
}

TEST_P(SpecialFoldersContract, AFolderThatIsNotThereIsNoFolderAndIsNotMade) {
  bed->setDocuments(inHome("Papers"));

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, AFileIsNoFolder) {
  bed->makeFile(inHome("Papers"));
  bed->setDocuments(inHome("Papers"));

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, AFolderThatGoesIsNoFolderFromThenOn) {
  bed->makeFolder(inHome("Papers"));
  bed->setDocuments(inHome("Papers"));
  ASSERT_TRUE(bed->folders().path(SpecialFolder::personal));

  bed->removeFolder(inHome("Papers"));

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, TheHomeIsNeverTheDocuments) {
  for (const std::string& ending : {std::string(), separator, separator + separator}) {
    bed->setDocuments(bed->home() + ending);

    EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt) << ending;
  }
}

TEST_P(SpecialFoldersContract, AFolderThatHoldsTheHomeIsNeverTheDocuments) {
  bed->setDocuments(bed->home().substr(0, bed->home().rfind(separator)));
  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);

  bed->setDocuments(bed->top());
  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), std::nullopt);
}

TEST_P(SpecialFoldersContract, AFolderWhoseNameOnlyBeginsLikeTheHomesMayBeTheDocuments) {
  bed->makeFolder(bed->home() + "-papers");
  bed->setDocuments(bed->home() + "-papers");

  EXPECT_EQ(bed->folders().path(SpecialFolder::personal), bed->home() + "-papers");
}

TEST_P(SpecialFoldersContract, TheTemporaryPathHasOneClosingSeparator) {
  bed->makeFolder(inHome("tmp"));

  bed->setTemporary(inHome("tmp"));
  EXPECT_EQ(bed->folders().temporaryPath(), inHome("tmp") + separator);

  bed->setTemporary(inHome("tmp") + separator + separator);
  EXPECT_EQ(bed->folders().temporaryPath(), inHome("tmp") + separator);
}

TEST_P(SpecialFoldersContract, TheHomeIsNeverTheTemporaryFolder) {
  bed->setTemporary(bed->home());

  EXPECT_NE(bed->folders().temporaryPath(), bed->home() + separator);
}

}  // namespace zelvane::test
