#include <filesystem>

#include <fcntl.h>

#include "platform/error.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_special_folders.h"
#include "platform/linux/recently_used.h"
#include "tests/contract/folder_tree_bed_linux.h"
#include "tests/contract/live_folders_contract.h"
#include "tests/support/listing.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Descriptor;
using platform::Environment;
using platform::Error;
using platform::LinuxFolderTree;
using platform::LinuxSpecialFolders;
using platform::LiveFolders;
using platform::RecentlyUsed;
using platform::SpecialFolder;
using Names = std::vector<std::string>;

constexpr const char* kList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\">\n"
    "  <bookmark href=\"file:///home/user/private.odt\" added=\"2026-11-20T10:00:00Z\"/>\n"
    "</xbel>\n";
constexpr const char* kListWithoutBookmarks =
    "<?xml version=\"1.0\"?><xbel version=\"1.0\"></xbel>";

// The recent documents of a throw-away home.
class RecentlyUsedBed : public LiveFoldersBed {
 public:
  LiveFolders& live() override { return live_; }
  SpecialFolder special() const override { return SpecialFolder::recent; }
  std::string addStore() override { return folder.write(kXbel, kList); }
  std::string addRealFolder() override {
    folder.write(kDocuments + "/file");
    return folder / kDocuments;
  }
  void holdStore() override {
    held_ = Descriptor(open((folder / kXbel).c_str(), O_RDONLY | O_CLOEXEC));
  }
  bool storeHoldsAnything() const override {
    return folder.read(kXbel).find("private.odt") != std::string::npos;
  }
  bool realFolderHas(const std::string& name) const override {
    return folder.has(kDocuments + "/" + name);
  }
  std::string addOtherFolder() override {
    folder.write("other/other");
    return folder / "other";
  }

  // Erases everything, and returns what is still listed.
  Names listedAfterErasing() {
    const auto root = live().openRoot(live().path(special()).value());
    for (const std::string& file : listOf(*root).files) root->removeFile(file);
    return listOf(*root).files;
  }

  const std::string kShare = "home/.local/share";
  const std::string kXbel = kShare + "/recently-used.xbel";
  const std::string kDocuments = kShare + "/RecentDocuments";
  ThrowAwayFolder folder;

 private:
  Environment environment_ = environmentIn(folder);
  LinuxSpecialFolders folders_{environment_};
  LinuxFolderTree tree_;
  RecentlyUsed recentlyUsed_{environment_};
  LiveFolders live_{folders_, tree_, {recentlyUsed_}};
  Descriptor held_;
};

INSTANTIATE_TEST_SUITE_P(Linux, LiveFoldersContract,
                         testing::Values([]() -> std::unique_ptr<LiveFoldersBed> {
                           return std::make_unique<RecentlyUsedBed>();
                         }));

// As a folder tree they keep that contract, too, for all that is not theirs.
class LiveOverLinuxBed : public LinuxFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return live_; }

 private:
  LinuxSpecialFolders folders_{environmentIn(folder)};
  LiveFolders live_{folders_, LinuxFolderTreeBed::tree(), {}};
};

INSTANTIATE_TEST_SUITE_P(LiveOverLinux, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<LiveOverLinuxBed>();
                         }));

class RecentlyUsedTest : public testing::Test {
 protected:
  RecentlyUsedBed bed;
};

TEST_F(RecentlyUsedTest, AnErasedListIsAnEmptyOneThatKeepsNothingAndIsPrivate) {
  bed.addStore();

  bed.listedAfterErasing();

  const std::string list = bed.folder.read(bed.kXbel);
  EXPECT_TRUE(
      list.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\""));
  EXPECT_TRUE(list.ends_with("</xbel>\n"));
  EXPECT_EQ(list.find("<bookmark "), std::string::npos);
  EXPECT_EQ(fs::status(bed.folder / bed.kXbel).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(RecentlyUsedTest, AListWithoutBookmarksIsNotListedAndNotTouched) {
  bed.folder.write(bed.kXbel, kListWithoutBookmarks);

  const auto root = bed.live().openRoot(bed.live().path(bed.special()).value());

  EXPECT_TRUE(listOf(*root).files.empty());
  EXPECT_EQ(bed.folder.read(bed.kXbel), kListWithoutBookmarks);
}

TEST_F(RecentlyUsedTest, ADamagedListIsListedAndReplaced) {
  for (const std::string damaged : {"<xbel><bookm", "", "no list at all", "<xbel></xbel><more/>"}) {
    bed.folder.write(bed.kXbel, damaged);

    EXPECT_TRUE(bed.listedAfterErasing().empty()) << damaged;
    EXPECT_TRUE(bed.folder.read(bed.kXbel).ends_with("</xbel>\n")) << damaged;
  }
}

TEST_F(RecentlyUsedTest, ALinkInTheListsPlaceIsRefused) {
  bed.folder.write("elsewhere", kList);
  fs::create_directories(bed.folder / bed.kShare);
  fs::create_symlink(bed.folder / "elsewhere", bed.folder / bed.kXbel);
  const auto root = bed.live().openRoot(bed.live().path(bed.special()).value());

  EXPECT_THROW(root->removeFile("recently-used.xbel"), Error);
  EXPECT_EQ(bed.folder.read("elsewhere"), kList);
  EXPECT_TRUE(fs::is_symlink(bed.folder / bed.kXbel));
}

TEST_F(RecentlyUsedTest, CopiesBesideTheListAreDeleted) {
  bed.addStore();
  bed.folder.write(bed.kXbel + ".A1B2C3", kList);

  EXPECT_TRUE(bed.listedAfterErasing().empty());
  EXPECT_FALSE(bed.folder.has(bed.kXbel + ".A1B2C3"));
  EXPECT_TRUE(bed.folder.has(bed.kXbel));
}

TEST_F(RecentlyUsedTest, WhatAKilledErasureLeftBesideTheListGoesWithTheNextOne) {
  const std::string left = bed.kShare + "/.zelvane-0123456789abcdef0123456789abcdef";
  const std::string others = bed.kShare + "/.zelvane-notes";
  bed.addStore();
  bed.folder.write(left);
  bed.folder.write(others);

  bed.listedAfterErasing();

  EXPECT_FALSE(bed.folder.has(left));
  EXPECT_TRUE(bed.folder.has(others));
}

TEST_F(RecentlyUsedTest, WhatIsStillBeingWrittenBesideTheListStays) {
  const std::string pending = bed.kShare + "/.zelvane-0123456789abcdef0123456789abcdef";
  bed.addStore();
  const platform::Descriptor held(open(bed.folder.write(pending).c_str(), O_WRONLY | O_CLOEXEC));

  bed.listedAfterErasing();

  EXPECT_TRUE(bed.folder.has(pending));
}

TEST_F(RecentlyUsedTest, ListsOfFormerDaysAreErased) {
  bed.folder.write("home/.recently-used.xbel", kList);
  bed.folder.write("home/.recently-used", "<RecentFiles/>");

  EXPECT_EQ(bed.live().path(bed.special()), (bed.folder / "home/.recently-used.xbel") + ", " +
                                                (bed.folder / "home/.recently-used"));
  EXPECT_TRUE(bed.listedAfterErasing().empty());
  EXPECT_TRUE(bed.folder.read("home/.recently-used.xbel").ends_with("</xbel>\n"));
  EXPECT_FALSE(bed.folder.has("home/.recently-used"));
}

TEST_F(RecentlyUsedTest, ACopyInUseStays) {
  bed.folder.write(bed.kXbel + ".A1B2C3", kList);
  const Descriptor held(open((bed.folder / (bed.kXbel + ".A1B2C3")).c_str(), O_RDONLY | O_CLOEXEC));
  const auto root = bed.live().openRoot(bed.live().path(bed.special()).value());

  EXPECT_THROW(root->removeFile("recently-used.xbel.A1B2C3"), Error);
  EXPECT_TRUE(bed.folder.has(bed.kXbel + ".A1B2C3"));
}

TEST_F(RecentlyUsedTest, AFolderOfDocumentsThatIsALinkIsNotEntered) {
  bed.addStore();
  bed.folder.write("elsewhere/kept");
  fs::create_directory_symlink(bed.folder / "elsewhere", bed.folder / bed.kDocuments);

  const auto root = bed.live().openRoot(bed.live().path(bed.special()).value());

  EXPECT_TRUE(listOf(*root).subfolders.empty());
}

TEST_F(RecentlyUsedTest, ContributesToTheRecentDocumentsAlone) {
  bed.addStore();
  bed.addRealFolder();

  for (const SpecialFolder folder :
       {SpecialFolder::personal, SpecialFolder::favorites, SpecialFolder::internetCache,
        SpecialFolder::cookies, SpecialFolder::history}) {
    EXPECT_EQ(bed.live().path(folder), std::nullopt);
  }
}

}  // namespace
}  // namespace zelvane::test
