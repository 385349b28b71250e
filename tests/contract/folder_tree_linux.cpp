#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iterator>
#include <set>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include "platform/error.h"
#include "platform/linux/descriptor.h"
#include "platform/memory/memory_event_pump.h"
#include "tests/contract/folder_tree_bed_linux.h"
#include "tests/support/linux/child_process.h"
#include "tests/support/listing.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Descriptor;
using platform::Error;
using platform::LinuxFolderTree;
using platform::OpenFolder;

INSTANTIATE_TEST_SUITE_P(Linux, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<LinuxFolderTreeBed>();
                         }));

const LinuxFolderTree::Options kNoTrust{.way = {.mostDescriptors = 3, .askKernel = false},
                                        .listingIsGood = std::chrono::milliseconds(0)};

INSTANTIATE_TEST_SUITE_P(LinuxOfOldAndWithoutTrust, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<LinuxFolderTreeBed>(kNoTrust);
                         }));

std::ptrdiff_t openDescriptors() {
  return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

// The largest number of descriptors on the way down a chain of folders called "d".
std::ptrdiff_t mostDescriptorsBelow(OpenFolder& folder) {
  const std::ptrdiff_t here = openDescriptors();
  if (listOf(folder).subfolders.empty()) return here;
  return std::max(here, mostDescriptorsBelow(*folder.openSubfolder("d")));
}

fs::perms permissions(const std::string& path) { return fs::status(path).permissions(); }

// In another process: holds the file as long as the process lives.
void holdOpen(const std::string& path) { ASSERT_GE(open(path.c_str(), O_RDONLY | O_CLOEXEC), 0); }

void holdMapped(const std::string& path) {
  const platform::Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_NE(mmap(nullptr, 1, PROT_READ, MAP_PRIVATE, file.get(), 0), MAP_FAILED);
}

TEST(LinuxFolderTree, NoMoreThan64DescriptorsAreOpenInATreeOfAnyDepth) {
  LinuxFolderTreeBed bed;
  bed.addDeepFolders(300);
  const std::ptrdiff_t before = openDescriptors();

  const std::ptrdiff_t most = mostDescriptorsBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_EQ(most - before, 64);
  EXPECT_EQ(openDescriptors(), before);
  eraseBelow(*bed.tree().openRoot(bed.root()));
}

TEST(LinuxFolderTree, AFileThatAnotherProgramHoldsOpenStays) {
  LinuxFolderTreeBed bed;
  bed.addFile("file");
  ChildProcess program([&bed](const Say& say) {
    holdOpen(bed.path("file"));
    say("held");
    stayUntilKilled();
  });
  ASSERT_EQ(program.hearLine(), "held");

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile("file"), Error);
  EXPECT_TRUE(bed.has("file"));
}

TEST(LinuxFolderTree, AFileThatAnotherProgramHasMappedStays) {
  LinuxFolderTreeBed bed;
  bed.addFile("file");
  ChildProcess program([&bed](const Say& say) {
    holdMapped(bed.path("file"));
    say("held");
    stayUntilKilled();
  });
  ASSERT_EQ(program.hearLine(), "held");

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile("file"), Error);
  EXPECT_TRUE(bed.has("file"));
}

TEST(LinuxFolderTree, AnotherNameOfAFileInUseStays) {
  LinuxFolderTreeBed bed;
  bed.addFileInUse("file");
  fs::create_hard_link(bed.path("file"), bed.path("other"));

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile("other"), Error);
  EXPECT_TRUE(bed.has("other"));
}

TEST(LinuxFolderTree, AFileInUseStaysAlsoWhenItsFolderWasJustListed) {
  LinuxFolderTreeBed bed;
  bed.addFile("free");
  bed.addFileInUse("file");
  const auto root = bed.tree().openRoot(bed.root());
  ASSERT_EQ(listOf(*root).files.size(), 2U);

  root->removeFile("free");

  EXPECT_THROW(root->removeFile("file"), Error);
  EXPECT_TRUE(bed.has("file"));
}

TEST(LinuxFolderTree, AFileInUseThatTookTheNameOfAFreeOneSinceTheListingStays) {
  LinuxFolderTreeBed bed(kNoTrust);
  bed.addFile("name");
  bed.folder.write("used elsewhere");
  const Descriptor user(open((bed.folder / "used elsewhere").c_str(), O_RDONLY | O_CLOEXEC));
  const auto root = bed.tree().openRoot(bed.root());
  ASSERT_EQ(listOf(*root).files.size(), 1U);

  fs::rename(bed.folder / "used elsewhere", bed.path("name"));

  EXPECT_THROW(root->removeFile("name"), Error);
  EXPECT_TRUE(bed.has("name"));
}

TEST(LinuxFolderTree, ALinkToAFileInUseIsDeleted) {
  LinuxFolderTreeBed bed;
  bed.addFileInUse("file");
  bed.addLink("link", bed.path("file"));

  bed.tree().openRoot(bed.root())->removeFile("link");

  EXPECT_FALSE(bed.has("link"));
}

TEST(LinuxFolderTree, APipeIsNeitherListedNorDeleted) {
  LinuxFolderTreeBed bed;
  ASSERT_EQ(mkfifo(bed.path("pipe").c_str(), 0600), 0);

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_TRUE(listOf(*root).files.empty());
  EXPECT_THROW(root->removeFile("pipe"), Error);
  EXPECT_TRUE(bed.has("pipe"));
}

TEST(LinuxFolderTree, NamesAreBytesAndNeedNotBeUtf8) {
  LinuxFolderTreeBed bed;
  bed.addFile("\xff\xfe\n");

  const auto root = bed.tree().openRoot(bed.root());
  ASSERT_EQ(listOf(*root).files, std::vector<std::string>{"\xff\xfe\n"});
  root->removeFile("\xff\xfe\n");

  EXPECT_FALSE(bed.has("\xff\xfe\n"));
}

TEST(LinuxFolderTree, AZeroByteDoesNotCutAName) {
  LinuxFolderTreeBed bed;
  bed.addFile("file");

  const auto root = bed.tree().openRoot(bed.root());

  EXPECT_THROW(root->removeFile(std::string("file\0more", 9)), Error);
  EXPECT_TRUE(bed.has("file"));
}

TEST(LinuxFolderTree, AFolderThatSurvivesGetsItsPermissionsBack) {
  LinuxFolderTreeBed bed;
  bed.addFile("folder/file");
  bed.addFile("folder/.hidden");
  bed.addReadOnlyFolder("folder");
  const fs::perms before = permissions(bed.path("folder"));

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("folder/file"));
  EXPECT_EQ(permissions(bed.path("folder")), before);
}

TEST(LinuxFolderTree, ARootGetsItsPermissionsBack) {
  LinuxFolderTreeBed bed;
  bed.addFile("file");
  bed.addReadOnlyFolder("");
  const fs::perms before = permissions(bed.root());

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("file"));
  EXPECT_EQ(permissions(bed.root()), before);
}

TEST(LinuxFolderTree, AFolderThatCanBeReadButNotSearchedIsEmptiedWithForce) {
  LinuxFolderTreeBed bed;
  bed.addFile("folder/file");
  fs::permissions(bed.path("folder"), fs::perms::owner_read);

  eraseBelow(*bed.tree().openRoot(bed.root()));

  EXPECT_FALSE(bed.has("folder"));
}

TEST(LinuxFolderTree, ForceLeavesTheFoldersAboveTheRootAlone) {
  LinuxFolderTreeBed bed;
  bed.addFile("above/root/file");
  bed.addReadOnlyFolder("above");
  const fs::perms before = permissions(bed.path("above"));

  eraseBelow(*bed.tree().openRoot(bed.path("above/root")));

  EXPECT_FALSE(bed.has("above/root/file"));
  EXPECT_EQ(permissions(bed.path("above")), before);
}

TEST(LinuxFolderTree, ARootWhosePathEndsInADotOrTwoIsNeverALinksTarget) {
  LinuxFolderTreeBed bed;
  bed.addFile("target/inner/kept");
  bed.addLink("link", bed.path("target/inner"));

  EXPECT_THROW(bed.tree().openRoot(bed.path("link/.")), Error);
  EXPECT_THROW(bed.tree().openRoot(bed.path("link/./")), Error);
  EXPECT_THROW(bed.tree().openRoot(bed.path("link/..")), Error);
}

// The walk is deeper than it has descriptors for, when the part that it is in is moved elsewhere.
TEST(LinuxFolderTree, NothingOutsideTheRootIsReachedThroughAPartThatWasMovedAway) {
  LinuxFolderTreeBed bed({.way = {.mostDescriptors = 3}});
  bed.addFile("root/a/b/c/d/file");
  bed.addFile("outside/a/b/file");
  auto root = bed.tree().openRoot(bed.path("root"));
  auto a = root->openSubfolder("a");
  auto b = a->openSubfolder("b");
  auto c = b->openSubfolder("c");
  auto d = c->openSubfolder("d");

  bed.rename("root/a/b/c", "outside/a/b/c");
  d->removeFile("file");
  d.reset();
  c->removeFolder("d");
  c.reset();

  EXPECT_THROW(b->removeFile("file"), Error);
  EXPECT_THROW(listOf(*b), Error);
  b.reset();
  EXPECT_THROW(a->removeFolder("b"), Error);
  a.reset();
  EXPECT_EQ(listOf(*root).subfolders, std::vector<std::string>{"a"});
  EXPECT_TRUE(bed.has("outside/a/b/file"));
}

TEST(LinuxFolderTree, FoldersDestroyedInTheWrongOrderDoNoHarm) {
  LinuxFolderTreeBed bed;
  bed.addFile("a/b/file");
  auto root = bed.tree().openRoot(bed.root());
  auto a = root->openSubfolder("a");
  auto b = a->openSubfolder("b");
  const std::ptrdiff_t before = openDescriptors();

  root.reset();
  a.reset();
  b.reset();

  EXPECT_EQ(openDescriptors(), before - 3);
}

TEST(LinuxFolderTree, FilesAreListedInTheOrderOfTheirInodes) {
  LinuxFolderTreeBed bed;
  for (const char* name : {"c", "a", "d", "b", "e"}) bed.addFile(name);

  const std::vector<std::string> files = listOf(*bed.tree().openRoot(bed.root())).files;

  EXPECT_EQ(files.size(), 5U);
  EXPECT_TRUE(std::ranges::is_sorted(files, {}, [&bed](const std::string& name) {
    struct stat status {};
    stat(bed.path(name).c_str(), &status);
    return status.st_ino;
  }));
}

// One piece of a listing is a mebibyte.
TEST(LinuxFolderTree, AFolderOfManyPiecesIsListedWholeWithEventsInBetween) {
  LinuxFolderTreeBed bed;
  constexpr int kFiles = 6'000;
  const std::string longName(200, 'x');
  const Descriptor root(open(bed.root().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  for (int number = 0; number < kFiles; ++number) {
    const std::string name = longName + std::to_string(number);
    ASSERT_EQ(mknodat(root.get(), name.c_str(), S_IFREG | 0600, 0), 0);
  }
  platform::MemoryEventPump pump;

  const platform::FolderListing listing = bed.tree().openRoot(bed.root())->list(pump);

  const std::set<std::string> names(listing.files.begin(), listing.files.end());
  EXPECT_EQ(listing.files.size(), kFiles);
  EXPECT_EQ(names.size(), kFiles);
  EXPECT_TRUE(names.contains(longName + "5999"));
  EXPECT_GE(pump.calls(), 2);
}

}  // namespace
}  // namespace zelvane::test
