#include "platform/shared/jump_list_tree.h"

#include <gtest/gtest.h>

#include "cleaner/erasure.h"
#include "platform/error.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_folder_tree.h"
#include "platform/memory/memory_special_folders.h"
#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::Error;
using platform::SpecialFolder;

class JumpListTree : public testing::Test {
 protected:
  JumpListTree() {
    fileSystem.addFolder(kRecent);
    special.set(SpecialFolder::recent, kRecent);
  }

  void add(const std::string& name, const std::string& content = "content") {
    fileSystem.addFile(kRecent + "/" + name, content);
  }
  std::string content(const std::string& name) const {
    return files.readWhole(kRecent + "/" + name, 65536);
  }
  bool has(const std::string& name) const { return fileSystem.has(kRecent + "/" + name); }
  void erase() { cleaner::eraseContents(tree, pump, kRecent); }

  const std::string kRecent = "/home/user/Recent";
  const std::string kUsed = "AutomaticDestinations/1b4dd67f29cb1962.automaticDestinations-ms";
  const std::string kPinned = "AutomaticDestinations/f01b4d95cf55d32a.automaticDestinations-ms";
  platform::MemoryFileSystem fileSystem;
  platform::MemorySpecialFolders special{fileSystem};
  platform::MemoryFolderTree plain{fileSystem};
  platform::MemoryFiles files{fileSystem};
  platform::MemoryEventPump pump;
  platform::JumpListTree tree{special, plain, files};
};

TEST_F(JumpListTree, LinksAndListsWithoutPinsGoAndWhatIsPinnedStays) {
  add("document.lnk");
  add(kUsed, jumpList(4, {{"C:\\used"}}));
  add(kPinned, jumpList(4, {{"C:\\used"}, {"C:\\pinned", 0}}));

  erase();

  EXPECT_FALSE(has("document.lnk"));
  EXPECT_FALSE(has(kUsed));
  EXPECT_EQ(content(kPinned), jumpList(4, {{"C:\\pinned", 0, 2}}));
}

TEST_F(JumpListTree, AListOfPinsAloneIsNotWrittenAnew) {
  const std::string kept = jumpList(4, {{"C:\\pinned", 0}}) + "what may be behind it";
  add(kPinned, kept);

  erase();

  EXPECT_EQ(content(kPinned), kept);
}

TEST_F(JumpListTree, AListThatIsNotUnderstoodStays) {
  add(kUsed, "damaged");
  add(kPinned, jumpList(5, {{"C:\\used"}}));

  erase();

  EXPECT_TRUE(has(kUsed));
  EXPECT_TRUE(has(kPinned));
}

TEST_F(JumpListTree, AnEndingInCapitalsIsTheSameEnding) {
  add("AUTOMATICDESTINATIONS/LIST.AUTOMATICDESTINATIONS-MS", jumpList(4, {{"C:\\pinned", 0}}));

  erase();

  EXPECT_TRUE(has("AUTOMATICDESTINATIONS/LIST.AUTOMATICDESTINATIONS-MS"));
}

TEST_F(JumpListTree, WhatProgramsPutIntoTheirListsStays) {
  add("CustomDestinations/28c8b86deab549a1.customDestinations-ms");

  erase();

  EXPECT_TRUE(has("CustomDestinations/28c8b86deab549a1.customDestinations-ms"));
}

TEST_F(JumpListTree, TheTwoFoldersStayAlsoWhenTheyAreEmpty) {
  add(kUsed, jumpList(4, {{"C:\\used"}}));
  fileSystem.addFolder(kRecent + "/CustomDestinations");

  erase();

  EXPECT_TRUE(has("AutomaticDestinations"));
  EXPECT_TRUE(has("CustomDestinations"));
}

TEST_F(JumpListTree, RefusalsSayPermissionDeniedAndNameTheList) {
  add(kPinned, jumpList(4, {{"C:\\pinned", 0}}));
  const auto root = tree.openRoot(kRecent + "/");
  const auto lists = root->openSubfolder("AutomaticDestinations");

  try {
    lists->removeFile("f01b4d95cf55d32a.automaticDestinations-ms");
    FAIL() << "it was deleted";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), platform::ErrorNumber::permissionDenied);
    EXPECT_NE(error.text().find("f01b4d95cf55d32a"), std::string::npos);
  }
}

TEST_F(JumpListTree, OtherFoldersAreErasedAsEver) {
  fileSystem.addFile("/other/CustomDestinations/file");

  cleaner::eraseContents(tree, pump, "/other");

  EXPECT_FALSE(fileSystem.has("/other/CustomDestinations"));
}

}  // namespace
}  // namespace zelvane::test
