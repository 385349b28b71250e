#include "platform/error.h"
#include "platform/memory/faulty_folder_tree.h"
#include "tests/contract/folder_tree_bed_memory.h"
#include "tests/support/listing.h"

namespace zelvane::test {
namespace {

INSTANTIATE_TEST_SUITE_P(Memory, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<MemoryFolderTreeBed>();
                         }));

// With no fault set a decorator is like what it wraps.
class FaultyFolderTreeBed : public MemoryFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return faulty_; }

 private:
  platform::Faults faults_;
  platform::FaultyFolderTree faulty_{MemoryFolderTreeBed::tree(), faults_};
};

INSTANTIATE_TEST_SUITE_P(Faulty, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<FaultyFolderTreeBed>();
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
