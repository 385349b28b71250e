#include "tests/contract/folder_tree_contract.h"

#include <algorithm>
#include <vector>

#include "platform/error.h"
#include "tests/support/listing.h"

namespace zelvane::test {

using platform::Error;
using platform::ErrorNumber;
using platform::OpenFolder;

void eraseBelow(OpenFolder& folder) {
  const Listing listing = listOf(folder);
  for (const std::string& name : listing.subfolders) {
    try {
      eraseBelow(*folder.openSubfolder(name));
      folder.removeFolder(name);
    } catch (const Error&) {
      // Stays, as in an erasure.
    }
  }
  for (const std::string& name : listing.files) {
    try {
      folder.removeFile(name);
    } catch (const Error&) {
      // Stays.
    }
  }
}

namespace {

std::vector<std::string> sorted(std::vector<std::string> names) {
  std::ranges::sort(names);
  return names;
}

// The number of the error that the action throws; internal when it throws none.
template <typename Action>
ErrorNumber errorOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.number();
  }
  return ErrorNumber::internal;
}

}  // namespace

TEST_P(FolderTreeContract, AnEmptyFolderListsNothing) {
  const Listing listing = listOf(*openRoot());

  EXPECT_TRUE(listing.files.empty());
  EXPECT_TRUE(listing.subfolders.empty());
}

TEST_P(FolderTreeContract, FilesAndSubfoldersAreListedApart) {
  bed->addFile("a.txt");
  bed->addFile("b");
  bed->addFolder("folder");
  bed->addFile("other/inside");

  const Listing listing = listOf(*openRoot());

  EXPECT_EQ(sorted(listing.files), (std::vector<std::string>{"a.txt", "b"}));
  EXPECT_EQ(sorted(listing.subfolders), (std::vector<std::string>{"folder", "other"}));
}

TEST_P(FolderTreeContract, HiddenFilesAreNotListedButHiddenFoldersAre) {
  bed->addHiddenFile("secret");
  const std::string folder = bed->addHiddenFolder("cache");

  const Listing listing = listOf(*openRoot());

  EXPECT_TRUE(listing.files.empty());
  EXPECT_EQ(listing.subfolders, std::vector<std::string>{folder});
}

TEST_P(FolderTreeContract, ASocketIsNotListed) {
  if (const std::string why = bed->whyNoSockets(); !why.empty()) GTEST_SKIP() << why;
  bed->addSocket("socket");

  EXPECT_TRUE(listOf(*openRoot()).files.empty());
}

TEST_P(FolderTreeContract, ALinkToAFolderIsListedAsAFile) {
  if (const std::string why = bed->whyPathsDecide(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("target/kept");
  bed->addLink("link", bed->path("target"));

  const Listing listing = listOf(*openRoot());

  EXPECT_EQ(listing.files, std::vector<std::string>{"link"});
  EXPECT_EQ(listing.subfolders, std::vector<std::string>{"target"});
}

TEST_P(FolderTreeContract, ALinkThatLeadsNowhereIsListedAndDeleted) {
  if (const std::string why = bed->whyPathsDecide(); !why.empty()) GTEST_SKIP() << why;
  bed->addLink("link", bed->path("nothing"));

  const auto root = openRoot();
  ASSERT_EQ(listOf(*root).files, std::vector<std::string>{"link"});
  root->removeFile("link");

  EXPECT_FALSE(bed->has("link"));
}

TEST_P(FolderTreeContract, DeletingALinkKeepsWhatItLeadsTo) {
  if (const std::string why = bed->whyPathsDecide(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("target/kept");
  bed->addLink("toFolder", bed->path("target"));
  bed->addLink("toFile", bed->path("target/kept"));

  const auto root = openRoot();
  root->removeFile("toFolder");
  root->removeFile("toFile");

  EXPECT_FALSE(bed->has("toFolder"));
  EXPECT_FALSE(bed->has("toFile"));
  EXPECT_TRUE(bed->has("target/kept"));
}

TEST_P(FolderTreeContract, ALinkIsNeverEntered) {
  bed->addFile("target/kept");
  bed->addLink("link", bed->path("target"));

  const auto root = openRoot();

  EXPECT_THROW(root->openSubfolder("link"), Error);
}

TEST_P(FolderTreeContract, ALinkIsNoRootWithOrWithoutClosingSeparators) {
  bed->addFile("target/kept");
  bed->addLink("link", bed->path("target"));

  EXPECT_THROW(bed->tree().openRoot(bed->path("link")), Error);
  EXPECT_THROW(bed->tree().openRoot(bed->path("link") + "/"), Error);
  EXPECT_THROW(bed->tree().openRoot(bed->path("link") + "//"), Error);
}

TEST_P(FolderTreeContract, AFileAndNothingAtAllAreNoRoots) {
  bed->addFile("file");

  EXPECT_THROW(bed->tree().openRoot(bed->path("file")), Error);
  EXPECT_EQ(errorOf([&] { bed->tree().openRoot(bed->path("nothing")); }),
            ErrorNumber::pathNotFound);
  EXPECT_EQ(errorOf([&] { bed->tree().openRoot(""); }), ErrorNumber::pathNotFound);
}

TEST_P(FolderTreeContract, ClosingSeparatorsOfTheRootDoNotMatter) {
  bed->addFile("file");

  EXPECT_EQ(listOf(*bed->tree().openRoot(bed->root() + "/")).files,
            std::vector<std::string>{"file"});
  EXPECT_EQ(listOf(*bed->tree().openRoot(bed->root() + "//")).files,
            std::vector<std::string>{"file"});
}

TEST_P(FolderTreeContract, AFileIsDeletedAndOnlyThatOne) {
  bed->addFile("a");
  bed->addFile("b");

  openRoot()->removeFile("a");

  EXPECT_FALSE(bed->has("a"));
  EXPECT_TRUE(bed->has("b"));
}

TEST_P(FolderTreeContract, AReadOnlyFileIsDeleted) {
  bed->addReadOnlyFile("file");

  openRoot()->removeFile("file");

  EXPECT_FALSE(bed->has("file"));
}

TEST_P(FolderTreeContract, AFileInAFolderWithoutWritePermissionIsDeletedAndSoIsTheFolder) {
  bed->addFile("folder/file");
  bed->addReadOnlyFolder("folder");

  const auto root = openRoot();
  root->openSubfolder("folder")->removeFile("file");
  root->removeFolder("folder");

  EXPECT_FALSE(bed->has("folder"));
}

TEST_P(FolderTreeContract, AFolderInAFolderWithoutWritePermissionIsDeleted) {
  bed->addFolder("folder/inner");
  bed->addReadOnlyFolder("folder");

  openRoot()->openSubfolder("folder")->removeFolder("inner");

  EXPECT_FALSE(bed->has("folder/inner"));
}

TEST_P(FolderTreeContract, AFolderThatCannotBeReadIsListedAndNotOpened) {
  if (const std::string why = bed->whyNoRefusals(); !why.empty()) GTEST_SKIP() << why;
  bed->addUnreadableFolder("folder");

  const auto root = openRoot();

  EXPECT_EQ(listOf(*root).subfolders, std::vector<std::string>{"folder"});
  EXPECT_EQ(errorOf([&] { root->openSubfolder("folder"); }), ErrorNumber::permissionDenied);
}

TEST_P(FolderTreeContract, AFileInUseStays) {
  bed->addFileInUse("file");

  const auto root = openRoot();

  EXPECT_EQ(errorOf([&] { root->removeFile("file"); }), ErrorNumber::permissionDenied);
  EXPECT_TRUE(bed->has("file"));
}

TEST_P(FolderTreeContract, AFileInUseKeepsItsFolder) {
  bed->addFileInUse("folder/file");
  bed->addFile("folder/free");

  const auto root = openRoot();
  eraseBelow(*root);

  EXPECT_TRUE(bed->has("folder/file"));
  EXPECT_FALSE(bed->has("folder/free"));
}

TEST_P(FolderTreeContract, WhatIsGoneAlreadyCountsAsDeleted) {
  const auto root = openRoot();

  EXPECT_NO_THROW(root->removeFile("nothing"));
  EXPECT_NO_THROW(root->removeFolder("nothing"));
}

TEST_P(FolderTreeContract, RemoveFileNeverDeletesAFolder) {
  bed->addFolder("folder");

  const auto root = openRoot();

  EXPECT_THROW(root->removeFile("folder"), Error);
  EXPECT_TRUE(bed->has("folder"));
}

TEST_P(FolderTreeContract, RemoveFolderDeletesAnEmptyFolderAlone) {
  bed->addFolder("empty");
  bed->addFile("full/file");
  bed->addFile("file");
  bed->addFolder("target");
  bed->addLink("link", bed->path("target"));

  const auto root = openRoot();

  EXPECT_THROW(root->removeFolder("full"), Error);
  EXPECT_THROW(root->removeFolder("file"), Error);
  EXPECT_THROW(root->removeFolder("link"), Error);
  EXPECT_NO_THROW(root->removeFolder("empty"));
  EXPECT_TRUE(bed->has("full/file"));
  EXPECT_TRUE(bed->has("file"));
  EXPECT_TRUE(bed->has("link"));
  EXPECT_TRUE(bed->has("target"));
  EXPECT_FALSE(bed->has("empty"));
}

TEST_P(FolderTreeContract, AFolderThatHoldsOnlyAHiddenFileIsNotEmpty) {
  const std::string hidden = bed->addHiddenFile("folder/secret");

  const auto root = openRoot();
  eraseBelow(*root);

  EXPECT_TRUE(bed->has(hidden));
}

TEST_P(FolderTreeContract, NamesThatLeadElsewhereAreRefused) {
  bed->addFile("folder/file");
  bed->addFile("above");

  const auto root = openRoot();
  const auto folder = root->openSubfolder("folder");

  for (const std::string name : {"", ".", "..", "../above", "../folder/file"}) {
    EXPECT_THROW(folder->removeFile(name), Error) << name;
    EXPECT_THROW(folder->removeFolder(name), Error) << name;
    EXPECT_THROW(folder->openSubfolder(name), Error) << name;
  }
  EXPECT_TRUE(bed->has("folder/file"));
  EXPECT_TRUE(bed->has("above"));
}

TEST_P(FolderTreeContract, NamesAreNoPatterns) {
  bed->addFile("a.txt");

  openRoot()->removeFile("*");

  EXPECT_TRUE(bed->has("a.txt"));
}

TEST_P(FolderTreeContract, ATreeIsErasedAndItsRootStays) {
  bed->addFile("a/b/c/file");
  bed->addFile("a/b/file");
  bed->addFolder("empty");
  bed->addFile("file");

  eraseBelow(*openRoot());

  EXPECT_FALSE(bed->has("a"));
  EXPECT_FALSE(bed->has("empty"));
  EXPECT_FALSE(bed->has("file"));
  EXPECT_TRUE(bed->has(""));
}

TEST_P(FolderTreeContract, TwoThousandLevelsAreErased) {
  if (const std::string why = bed->whyNotSoDeep(); !why.empty()) GTEST_SKIP() << why;
  bed->addDeepFolders(2000);

  eraseBelow(*openRoot());

  EXPECT_FALSE(bed->has("d"));
}

TEST_P(FolderTreeContract, AFolderThatVanishedCannotBeListed) {
  if (const std::string why = bed->whyVanishedLooksEmpty(); !why.empty()) GTEST_SKIP() << why;
  bed->addFolder("folder");
  const auto root = openRoot();
  const auto folder = root->openSubfolder("folder");

  bed->vanish("folder");

  EXPECT_THROW(listOf(*folder), Error);
}

TEST_P(FolderTreeContract, AnOpenFolderThatIsMovedAwayAndReplacedIsStillTheSame) {
  if (const std::string why = bed->whyPathsDecide(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("folder/file");
  bed->addFile("other/file");
  const auto root = openRoot();
  const auto folder = root->openSubfolder("folder");

  bed->rename("folder", "moved");
  bed->addLink("folder", bed->path("other"));
  folder->removeFile("file");

  EXPECT_FALSE(bed->has("moved/file"));
  EXPECT_TRUE(bed->has("other/file"));
}

TEST_P(FolderTreeContract, AMountedVolumeIsListedAndNotEntered) {
  if (const std::string why = bed->whyNoMounts(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("file");
  bed->mountVolume("volume");
  bed->addFile("volume/kept");

  const auto root = openRoot();

  EXPECT_EQ(listOf(*root).subfolders, std::vector<std::string>{"volume"});
  EXPECT_THROW(root->openSubfolder("volume"), Error);
  EXPECT_THROW(root->removeFolder("volume"), Error);
  EXPECT_TRUE(bed->has("volume/kept"));
}

TEST_P(FolderTreeContract, AFolderMountedAgainOnTheSameVolumeIsNotEntered) {
  if (const std::string why = bed->whyNoMounts(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("outside/kept");
  bed->mountAgain("outside", "inside/again");

  const auto inside = bed->tree().openRoot(bed->path("inside"));
  eraseBelow(*inside);

  EXPECT_TRUE(bed->has("outside/kept"));
  EXPECT_THROW(inside->openSubfolder("again"), Error);
}

TEST_P(FolderTreeContract, AMountPointMayBeTheRoot) {
  if (const std::string why = bed->whyNoMounts(); !why.empty()) GTEST_SKIP() << why;
  bed->mountVolume("volume");
  bed->addFile("volume/folder/file");

  eraseBelow(*bed->tree().openRoot(bed->path("volume")));

  EXPECT_FALSE(bed->has("volume/folder"));
  EXPECT_TRUE(bed->has("volume"));
}

}  // namespace zelvane::test
