#include "tests/contract/dialogs_contract.h"

#include <filesystem>

namespace zelvane::test {
namespace {

using platform::MessageIcon;

TEST_P(DialogsContract, ABoxShowsItsTextToTheLetterUnderItsTitleAndIcon) {
  for (const MessageIcon icon : {MessageIcon::none, MessageIcon::information,
                                 MessageIcon::exclamation, MessageIcon::critical}) {
    bed->willClose();

    bed->dialogs().show({"Error: 53 - <b>not & bold</b>\nsecond line", "Zelvane", icon});

    EXPECT_EQ(bed->lastBox().text, "Error: 53 - <b>not & bold</b>\nsecond line");
    EXPECT_EQ(bed->lastBox().title, "Zelvane");
    EXPECT_EQ(bed->lastBox().icon, icon);
  }
}

TEST_P(DialogsContract, AFileThatDoesNotExistMayBeChosenAndGetsNoExtension) {
  const std::string path = (std::filesystem::path(bed->folder()) / "new container").string();
  bed->willChoose(path);

  EXPECT_EQ(bed->dialogs().chooseFile({"", bed->folder(), "Dravik Files (*.dvk) | *.dvk"}), path);
}

TEST_P(DialogsContract, ACancelledFileQuestionHasNoAnswer) {
  bed->willCancel();

  EXPECT_EQ(bed->dialogs().chooseFile({"Choose", bed->folder(), "All Files (*.*) | *.*"}),
            std::nullopt);
}

TEST_P(DialogsContract, AChosenFolderHasNoClosingSeparator) {
  bed->willChoose(bed->folder());

  EXPECT_EQ(bed->dialogs().chooseFolder(""), bed->folder());
}

TEST_P(DialogsContract, ACancelledFolderQuestionHasNoAnswer) {
  bed->willCancel();

  EXPECT_EQ(bed->dialogs().chooseFolder("Choose"), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
