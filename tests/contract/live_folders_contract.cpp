#include "tests/contract/live_folders_contract.h"

#include <optional>
#include <vector>

#include "platform/error.h"
#include "tests/contract/folder_tree_contract.h"
#include "tests/support/listing.h"

namespace zelvane::test {

using platform::Error;
using Names = std::vector<std::string>;

std::unique_ptr<platform::OpenFolder> LiveFoldersContract::openRoot() {
  return bed->live().openRoot(bed->live().path(bed->special()).value());
}

TEST_P(LiveFoldersContract, WithNothingThereThereIsNoFolder) {
  EXPECT_EQ(bed->live().path(bed->special()), std::nullopt);
}

TEST_P(LiveFoldersContract, ThePathNamesTheRealPlaces) {
  const std::string store = bed->addStore();
  EXPECT_EQ(bed->live().path(bed->special()), store);

  const std::string folder = bed->addRealFolder();
  EXPECT_EQ(bed->live().path(bed->special()), store + ", " + folder);
}

TEST_P(LiveFoldersContract, StoresAreFilesAndRealFoldersAreSubfolders) {
  bed->addStore();
  bed->addRealFolder();

  const Listing listing = listOf(*openRoot());

  EXPECT_EQ(listing.files.size(), 1U);
  EXPECT_EQ(listing.subfolders.size(), 1U);
}

TEST_P(LiveFoldersContract, AClosingSeparatorOfThePathDoesNotMatter) {
  bed->addStore();

  const auto root = bed->live().openRoot(bed->live().path(bed->special()).value() + "/");

  EXPECT_EQ(listOf(*root).files.size(), 1U);
}

TEST_P(LiveFoldersContract, AStoreIsErasedAndGoneFromTheNextListing) {
  bed->addStore();
  const auto root = openRoot();
  const Names files = listOf(*root).files;

  root->removeFile(files.at(0));

  EXPECT_FALSE(bed->storeHoldsAnything());
  EXPECT_TRUE(listOf(*root).files.empty());
  EXPECT_TRUE(listOf(*openRoot()).files.empty());
}

TEST_P(LiveFoldersContract, AStoreThatIsErasedAlreadyCountsAsErased) {
  bed->addStore();
  const auto root = openRoot();
  const Names files = listOf(*root).files;
  root->removeFile(files.at(0));

  EXPECT_NO_THROW(root->removeFile(files.at(0)));
  EXPECT_NO_THROW(root->removeFile("nothing"));
}

TEST_P(LiveFoldersContract, AStoreInUseStaysAsItIs) {
  bed->addStore();
  bed->holdStore();
  const auto root = openRoot();
  const Names files = listOf(*root).files;

  EXPECT_THROW(root->removeFile(files.at(0)), Error);
  EXPECT_TRUE(bed->storeHoldsAnything());
  EXPECT_EQ(listOf(*root).files, files);
}

TEST_P(LiveFoldersContract, ARealFolderIsErasedAndSurvivesItsOwnRemovalSilently) {
  bed->addRealFolder();
  const auto root = openRoot();
  const Names folders = listOf(*root).subfolders;

  root->openSubfolder(folders.at(0))->removeFile("file");
  root->removeFolder(folders.at(0));

  EXPECT_FALSE(bed->realFolderHas("file"));
  EXPECT_TRUE(bed->realFolderHas(""));
  EXPECT_EQ(listOf(*root).subfolders, folders);
}

TEST_P(LiveFoldersContract, NothingIsLeftAfterAnErasureButThePlacesStay) {
  bed->addStore();
  bed->addRealFolder();
  const auto before = bed->live().path(bed->special());

  eraseBelow(*openRoot());

  EXPECT_FALSE(bed->storeHoldsAnything());
  EXPECT_FALSE(bed->realFolderHas("file"));
  EXPECT_EQ(bed->live().path(bed->special()), before);
}

TEST_P(LiveFoldersContract, FilesAndFoldersAreNotMistakenForEachOther) {
  bed->addStore();
  bed->addRealFolder();
  const auto root = openRoot();
  const Listing listing = listOf(*root);

  EXPECT_THROW(root->removeFile(listing.subfolders.at(0)), Error);
  EXPECT_THROW(root->removeFolder(listing.files.at(0)), Error);
  EXPECT_THROW(root->openSubfolder(listing.files.at(0)), Error);
  EXPECT_TRUE(bed->storeHoldsAnything());
  EXPECT_TRUE(bed->realFolderHas("file"));
}

TEST_P(LiveFoldersContract, NamesThatLeadElsewhereAreRefused) {
  bed->addStore();
  const auto root = openRoot();

  for (const std::string name : {"", ".", "..", "a/b"}) {
    EXPECT_THROW(root->removeFile(name), Error) << name;
    EXPECT_THROW(root->removeFolder(name), Error) << name;
    EXPECT_THROW(root->openSubfolder(name), Error) << name;
  }
}

TEST_P(LiveFoldersContract, ASubfolderThatIsNotThereCannotBeOpened) {
  bed->addStore();

  EXPECT_THROW(openRoot()->openSubfolder("nothing"), Error);
}

TEST_P(LiveFoldersContract, APlaceThatAppearsAfterThePathWasGivenIsInTheFolder) {
  bed->addStore();
  const std::string path = bed->live().path(bed->special()).value();

  bed->addRealFolder();

  EXPECT_EQ(listOf(*bed->live().openRoot(path)).subfolders.size(), 1U);
}

TEST_P(LiveFoldersContract, AnyOtherPathIsTheDesktopsOwn) {
  bed->addStore();
  const std::string other = bed->addOtherFolder();

  EXPECT_EQ(listOf(*bed->live().openRoot(other)).files, Names{"other"});
  EXPECT_THROW(bed->live().openRoot(other + ", " + other), Error);
}

}  // namespace zelvane::test
