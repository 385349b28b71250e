#include "platform/error.h"
#include "tests/contract/folder_tree_bed_memory.h"
#include "tests/support/listing.h"

namespace zelvane::test {
namespace {

INSTANTIATE_TEST_SUITE_P(Memory, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<MemoryFolderTreeBed>();
                         }));

TEST(MemoryFolderTree, WhatIsDeletedIsRecordedInItsOrder) {
  MemoryFolderTreeBed bed;
  bed.addFile("b");
  bed.addFile("folder/a");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_EQ(bed.fileSystem.deleted(),
            (std::vector<std::string>{bed.path("folder/a"), bed.path("folder"), bed.path("b")}));
}

TEST(MemoryFolderTree, AFolderThatCannotBeListedCanBeOpened) {
  MemoryFolderTreeBed bed;
  bed.fileSystem.addFolder(bed.path("folder"), {.unlistable = true});

  const auto root = bed.tree().openRoot(bed.root());
  const auto folder = root->openSubfolder("folder");

  EXPECT_THROW(listOf(*folder), platform::Error);
}

TEST(MemoryFolderTree, NothingIsDeletedFromSomebodyElsesFolder) {
  MemoryFolderTreeBed bed;
  bed.addFile("folder/file");
  bed.fileSystem.addFolder(bed.path("folder"), {.foreign = true});

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_TRUE(bed.has("folder/file"));
}

}  // namespace
}  // namespace zelvane::test
