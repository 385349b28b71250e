#include <set>

#include "platform/error.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/windows/entry_kind.h"
#include "platform/windows/long_path.h"
#include "platform/windows/wide_text.h"
#include "tests/contract/child_process_windows.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/support/listing.h"
#include "tests/support/remove_tree.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

using platform::EntryKind;
using platform::Error;
using platform::Handle;
using platform::HeldFolder;
using platform::kindOf;
using platform::longPath;
using platform::WindowsFolderTree;
using Names = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(Windows, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<WindowsFolderTreeBed>();
                         }));

HeldFolder::Options fewHandles() {
  HeldFolder::Options way = WindowsFolderTree::usualWay();
  way.mostHandles = 3;
  return way;
}

INSTANTIATE_TEST_SUITE_P(WindowsWithFewHandles, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<WindowsFolderTreeBed>(fewHandles());
                         }));

std::string longName(char letter) { return std::string(200, letter); }

TEST(WindowsFolderTree, ATreeDeeperThanHandlesAreKeptIsErased) {
  WindowsFolderTreeBed bed;
  bed.addDeepFolders(130);

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("d"));
}

TEST(WindowsFolderTree, PathsOfMoreThan260CharactersAreErased) {
  WindowsFolderTreeBed bed;
  const std::string deep = longName('a') + "/" + longName('b') + "/" + longName('c');
  bed.addFile(deep + "/file");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has(longName('a')));
}

// Linux, below Wine, deletes nothing whose path is longer than 4,096 bytes.
TEST(WindowsFolderTree, PathsOfMoreThan4096CharactersAreErasedOrUnderWineLeft) {
  WindowsFolderTreeBed bed;
  bed.addDeepFolders(25, longName('d'));
  bed.addFile("file");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("file"));
  EXPECT_EQ(bed.has(longName('d')), runsUnderWine());
}

TEST(WindowsFolderTree, ARootMayHaveAPathOfMoreThan260Characters) {
  WindowsFolderTreeBed bed;
  const std::string deep = longName('a') + "/" + longName('b') + "/root";
  bed.addFile(deep + "/file");

  eraseBelow(*bed.tree().openRoot(bed.path(deep) + "\\"));

  EXPECT_FALSE(bed.has(deep + "/file"));
  EXPECT_TRUE(bed.has(deep));
}

TEST(WindowsFolderTree, NamesThatWindowsUsuallyChangesOrTakesForDevicesAreErased) {
  WindowsFolderTreeBed bed;
  for (const std::string name : {"dot.", "blank ", "con.txt", "nul", "COM1", "dots..."}) {
    bed.addFile(name);
    bed.addFile("folder of " + name + "/" + name);
    bed.addFile(name + "x/" + name);
  }
  bed.addFile("folder./file");
  bed.addFile("aux/file");
  ASSERT_EQ(listOf(*bed.tree().openRoot(bed.root())).files.size(), 6U);

  eraseBelow(*bed.tree().openRoot(bed.root()));

  const Listing left = listOf(*bed.tree().openRoot(bed.root()));
  EXPECT_EQ(left.files, Names());
  EXPECT_EQ(left.subfolders, Names());
}

TEST(WindowsFolderTree, ANameThatEndsInADotIsNotTheNameWithoutIt) {
  WindowsFolderTreeBed bed;
  bed.addFile("name");
  bed.addFile("name.");

  bed.tree().openRoot(bed.root())->removeFile("name.");

  EXPECT_TRUE(bed.has("name"));
  EXPECT_FALSE(bed.has("name."));
}

TEST(WindowsFolderTree, NamesOfAnyLanguageComeBack) {
  WindowsFolderTreeBed bed;
  const std::string name = "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\xA7\xB9";
  bed.addFile(name);

  const auto root = bed.tree().openRoot(bed.root());
  ASSERT_EQ(listOf(*root).files, Names{name});
  root->removeFile(name);

  EXPECT_FALSE(bed.has(name));
}

TEST(WindowsFolderTree, AStreamOfAFileIsNoName) {
  WindowsFolderTreeBed bed;
  bed.addFile("file");

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile("file::$DATA"), Error);
  EXPECT_THROW(root->removeFile("file:stream"), Error);
  EXPECT_THROW(root->removeFile("folder\\file"), Error);
  EXPECT_TRUE(bed.has("file"));
}

TEST(WindowsFolderTree, AZeroByteDoesNotCutAName) {
  WindowsFolderTreeBed bed;
  bed.addFile("file");

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile(std::string("file\0more", 9)), Error);
  EXPECT_TRUE(bed.has("file"));
}

// The length of a name is counted in 16 bits.
TEST(WindowsFolderTree, ANameTooLongForTheSystemIsNotCut) {
  WindowsFolderTreeBed bed({.comparePaths = false});
  bed.addFile("xxxx");

  EXPECT_THROW(bed.tree().openRoot(bed.root())->removeFile(std::string(32'768 + 4, 'x')), Error);
  EXPECT_TRUE(bed.has("xxxx"));
}

TEST(WindowsFolderTree, HiddenAndSystemFilesAreNotListedAndReadOnlyOnesAre) {
  WindowsFolderTreeBed bed;
  for (const auto& [name, attributes] : std::initializer_list<std::pair<const char*, DWORD>>{
           {"hidden", FILE_ATTRIBUTE_HIDDEN},
           {"system", FILE_ATTRIBUTE_SYSTEM},
           {"both", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM},
           {"readonly", FILE_ATTRIBUTE_READONLY}}) {
    bed.addFile(name);
    setAttributes(bed.path(name), attributes);
  }

  EXPECT_EQ(listOf(*bed.tree().openRoot(bed.root())).files, Names{"readonly"});
}

TEST(WindowsFolderTree, OneForAProgramsOwnFoldersListsHiddenAndSystemFilesToo) {
  WindowsFolderTreeBed bed;
  bed.addFile("ordinary");
  bed.addFile("hidden");
  setAttributes(bed.path("hidden"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  WindowsFolderTree whole({.way = WindowsFolderTree::usualWay(), .listsHiddenFiles = true});

  const Names files = listOf(*whole.openRoot(bed.root())).files;

  EXPECT_EQ(std::set<std::string>(files.begin(), files.end()),
            (std::set<std::string>{"hidden", "ordinary"}));
}

TEST(WindowsFolderTree, AReadOnlyFileThatStaysIsReadOnlyStill) {
  WindowsFolderTreeBed bed;
  bed.addFileInUse("file");
  setAttributes(bed.path("file"), FILE_ATTRIBUTE_READONLY);

  EXPECT_THROW(bed.tree().openRoot(bed.root())->removeFile("file"), Error);
  EXPECT_NE(attributesOf(bed.path("file")) & FILE_ATTRIBUTE_READONLY, 0U);
}

TEST(WindowsFolderTree, AnotherNameOfADeletedReadOnlyFileIsReadOnlyStill) {
  WindowsFolderTreeBed bed;
  bed.addReadOnlyFile("file");
  ASSERT_NE(CreateHardLinkW(longPath(bed.path("other")).c_str(), longPath(bed.path("file")).c_str(),
                            nullptr),
            0);

  bed.tree().openRoot(bed.root())->removeFile("file");

  EXPECT_FALSE(bed.has("file"));
  EXPECT_NE(attributesOf(bed.path("other")) & FILE_ATTRIBUTE_READONLY, 0U);
}

TEST(WindowsFolderTree, AnotherNameOfAFileInUseStays) {
  WindowsFolderTreeBed bed;
  bed.addFileInUse("file");
  ASSERT_NE(CreateHardLinkW(longPath(bed.path("other")).c_str(), longPath(bed.path("file")).c_str(),
                            nullptr),
            0);

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile("other"), Error);
  EXPECT_TRUE(bed.has("other"));
}

TEST(WindowsFolderTree, AFileThatAnotherProgramHoldsOpenStays) {
  ChildProcess program([](const Say& say) {
    WindowsFolderTreeBed bed;
    bed.addFileInUse("file");
    say(bed.folder / "");
    stayUntilKilled();
  });
  const std::string place = program.hearLine();

  EXPECT_THROW(WindowsFolderTree().openRoot(place + "root")->removeFile("file"), Error);
  EXPECT_TRUE(isThere(place + "root\\file"));

  program.kill();
  removeTree(platform::wideText(place));
}

// Not recognised as links, but left alone with what they lead to.
TEST(WindowsFolderTree, UnderWineUnixLinksToFilesStayWithWhatTheyLeadTo) {
  if (!runsUnderWine()) GTEST_SKIP() << "Windows has links of its own, see the contract";
  WindowsFolderTreeBed bed;
  makeFile(bed.folder / "outside/kept");
  bed.addLink("link", bed.folder / "outside/kept");
  bed.addLink("kept", bed.folder / "outside/kept");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_TRUE(isThere(bed.folder / "outside/kept"));
  EXPECT_TRUE(bed.has("link"));
  EXPECT_TRUE(bed.has("kept"));
}

TEST(WindowsFolderTree, UnderWineUnixLinksToFoldersStayAndAreNeverEntered) {
  if (!runsUnderWine()) GTEST_SKIP() << "Windows has links of its own, see the contract";
  WindowsFolderTreeBed bed;
  makeFile(bed.folder / "outside/kept");
  makeFolders(bed.folder / "empty");
  bed.addLink("link", bed.folder / "outside");
  bed.addLink("toEmpty", bed.folder / "empty");

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_TRUE(isThere(bed.folder / "outside/kept"));
  EXPECT_TRUE(isThere(bed.folder / "empty"));
  EXPECT_TRUE(bed.has("link"));
}

TEST(WindowsFolderTree, UnderWineALoopOfLinksIsLeftAndTheRestErased) {
  if (!runsUnderWine()) GTEST_SKIP() << "Windows has links of its own, see the contract";
  WindowsFolderTreeBed bed;
  bed.addFile("folder/file");
  bed.addLink("folder/up", bed.root());
  bed.addLink("self", bed.path("self"));

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("folder/file"));
  EXPECT_TRUE(bed.has("folder/up"));
}

TEST(WindowsFolderTree, NothingOutsideTheRootIsReachedThroughAPartThatWasMovedAway) {
  WindowsFolderTreeBed bed(fewHandles());
  bed.addFile("root/a/b/c/d/file");
  bed.addFile("outside/a/b/file");
  auto root = bed.tree().openRoot(bed.path("root"));
  auto a = root->openSubfolder("a");
  auto b = a->openSubfolder("b");
  auto c = b->openSubfolder("c");
  auto d = c->openSubfolder("d");

  d.reset();
  bed.rename("root/a/b/c", "outside/a/b/c");
  c.reset();
  EXPECT_THROW(b->removeFolder("nothing/../../outside"), Error);
  b.reset();
  a.reset();

  EXPECT_EQ(listOf(*root).subfolders, Names{"a"});
  EXPECT_TRUE(bed.has("outside/a/b/file"));
  EXPECT_TRUE(bed.has("outside/a/b/c/d/file"));
}

TEST(WindowsFolderTree, FoldersDestroyedInTheWrongOrderDoNoHarm) {
  WindowsFolderTreeBed bed;
  bed.addFile("a/b/file");
  auto root = bed.tree().openRoot(bed.root());
  auto a = root->openSubfolder("a");
  auto b = a->openSubfolder("b");

  root.reset();
  a.reset();
  b->removeFile("file");
  b.reset();

  EXPECT_FALSE(bed.has("a/b/file"));
}

// One piece of a listing is 64 KiB.
TEST(WindowsFolderTree, AFolderOfManyPiecesIsListedWholeWithEventsInBetween) {
  WindowsFolderTreeBed bed;
  constexpr int kFiles = 500;
  for (int number = 0; number < kFiles; ++number) {
    bed.addFile(longName('x') + std::to_string(number));
  }
  platform::MemoryEventPump pump;

  const platform::FolderListing listing = bed.tree().openRoot(bed.root())->list(pump);

  const std::set<std::string> names(listing.files.begin(), listing.files.end());
  EXPECT_EQ(listing.files.size(), kFiles);
  EXPECT_EQ(names.size(), kFiles);
  EXPECT_TRUE(names.contains(longName('x') + "499"));
  EXPECT_GE(pump.calls(), 2);
}

// Links and mounts of Windows itself, which Wine does not have.
TEST(EntryKind, FollowsFromAttributesAndTag) {
  constexpr DWORD kFolder = FILE_ATTRIBUTE_DIRECTORY;
  constexpr DWORD kTagged = FILE_ATTRIBUTE_REPARSE_POINT;

  EXPECT_EQ(kindOf(FILE_ATTRIBUTE_ARCHIVE, 0), EntryKind::file);
  EXPECT_EQ(kindOf(kFolder | FILE_ATTRIBUTE_HIDDEN, 0), EntryKind::folder);
  EXPECT_EQ(kindOf(kTagged, IO_REPARSE_TAG_SYMLINK), EntryKind::link);
  EXPECT_EQ(kindOf(kTagged | kFolder, IO_REPARSE_TAG_SYMLINK), EntryKind::link);
  EXPECT_EQ(kindOf(kTagged | kFolder, IO_REPARSE_TAG_MOUNT_POINT), EntryKind::place);
  EXPECT_EQ(kindOf(kTagged | kFolder, 0x9000001A), EntryKind::place);  // a folder of a cloud
  EXPECT_EQ(kindOf(kTagged, 0x9000001A), EntryKind::file);
  EXPECT_EQ(kindOf(kTagged, 0x80000023), EntryKind::other);  // a socket
  EXPECT_EQ(kindOf(FILE_ATTRIBUTE_ARCHIVE, IO_REPARSE_TAG_SYMLINK), EntryKind::file);
}

}  // namespace
}  // namespace zelvane::test
