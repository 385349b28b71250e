#include <gtest/gtest.h>

#include "platform/shared/jump_list_tree.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_special_folders.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::SpecialFolder;

// The root is the shell's folder of recent documents.
class RecentDocumentsBed : public WindowsFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return tree_; }

 private:
  platform::WindowsSpecialFolders folders_{{.special = [this](SpecialFolder) { return root(); },
                                            .temporary = [] { return std::nullopt; },
                                            .kept = {}}};
  platform::WindowsFiles files_;
  platform::JumpListTree tree_{folders_, WindowsFolderTreeBed::tree(), files_};
};

INSTANTIATE_TEST_SUITE_P(WindowsRecent, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<RecentDocumentsBed>();
                         }));

TEST(WindowsJumpLists, LinksAndListsWithoutPinsGoAndPinnedOnesStayWhole) {
  RecentDocumentsBed bed;
  const std::string pinned = jumpList(4, {{"C:\\used"}, {"C:\\pinned", 0}});
  bed.addFile("document.lnk");
  bed.addFile("CustomDestinations/28c8b86deab549a1.customDestinations-ms");
  bed.folder.write("root/AutomaticDestinations/used.automaticDestinations-ms",
                   jumpList(4, {{"C:\\used"}}));
  bed.folder.write("root/AutomaticDestinations/pinned.automaticDestinations-ms", pinned);
  bed.folder.write("root/AutomaticDestinations/damaged.automaticDestinations-ms", "damaged");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("document.lnk"));
  EXPECT_FALSE(bed.has("AutomaticDestinations/used.automaticDestinations-ms"));
  EXPECT_EQ(bed.folder.read("root/AutomaticDestinations/pinned.automaticDestinations-ms"), pinned);
  EXPECT_TRUE(bed.has("AutomaticDestinations/damaged.automaticDestinations-ms"));
  EXPECT_TRUE(bed.has("CustomDestinations/28c8b86deab549a1.customDestinations-ms"));
}

}  // namespace
}  // namespace zelvane::test
