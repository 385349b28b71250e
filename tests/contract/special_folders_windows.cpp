#include <optional>

#include <windows.h>

#include "platform/windows/long_path.h"
#include "platform/windows/windows_special_folders.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/contract/special_folders_contract.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

using platform::longPath;
using platform::SpecialFolder;
using platform::SystemFolders;
using platform::systemFolders;
using platform::WindowsSpecialFolders;

class WindowsSpecialFoldersBed : public SpecialFoldersBed {
 public:
  WindowsSpecialFoldersBed() {
    makeFolders(home());
    makeFolders(folder / "system");
  }

  platform::SpecialFolders& folders() override {
    return folders_.emplace(SystemFolders{.special = [this](SpecialFolder) { return documents; },
                                          .temporary = [this] { return temporary; },
                                          .kept = {keptHome, folder / "system"}});
  }
  std::string home() const override { return folder / "home"; }
  char separator() const override { return '\\'; }
  std::string top() const override { return home().substr(0, 3); }
  void makeFolder(const std::string& path) override { makeFolders(path); }
  void makeFile(const std::string& path) override { test::makeFile(path); }
  void removeFolder(const std::string& path) override { RemoveDirectoryW(longPath(path).c_str()); }
  void setDocuments(const std::string& path) override { documents = path; }
  void setTemporary(const std::string& path) override { temporary = path; }

  ThrowAwayFolder folder;
  std::optional<std::string> documents;
  std::optional<std::string> temporary;
  std::optional<std::string> keptHome = folder / "home";

 private:
  std::optional<WindowsSpecialFolders> folders_;
};

INSTANTIATE_TEST_SUITE_P(Windows, SpecialFoldersContract,
                         testing::Values([]() -> std::unique_ptr<SpecialFoldersBed> {
                           return std::make_unique<WindowsSpecialFoldersBed>();
                         }));

TEST(WindowsSpecialFolders, WhereTheSystemHasNoneThereIsNone) {
  WindowsSpecialFoldersBed bed;

  EXPECT_EQ(bed.folders().path(SpecialFolder::cookies), std::nullopt);
  EXPECT_EQ(bed.folders().temporaryPath(), std::nullopt);
}

TEST(WindowsSpecialFolders, AFolderHasManyNamesAndTheHomeIsTheHomeUnderEach) {
  WindowsSpecialFoldersBed bed;

  for (const std::string& name :
       {bed.home() + "\\.", bed.home() + "\\..\\HOME", "\\\\?\\" + bed.home()}) {
    bed.setDocuments(name);
    EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt) << name;
  }
}

TEST(WindowsSpecialFolders, ALinkToTheHomeIsTheHome) {
  WindowsSpecialFoldersBed bed;
  makeLink(bed.folder / "link", bed.home());
  bed.setDocuments(bed.folder / "link");

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(WindowsSpecialFolders, AHomeThatIsALinkIsHeldByTheFoldersAboveItsTarget) {
  WindowsSpecialFoldersBed bed;
  bed.makeFolder(bed.folder / "disk/homes/user");
  makeLink(bed.folder / "link", bed.folder / "disk/homes/user");
  bed.setDocuments(bed.folder / "disk");
  bed.keptHome = bed.folder / "link";

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(WindowsSpecialFolders, AHomeThatDoesNotExistProtectsTheFoldersAboveIt) {
  WindowsSpecialFoldersBed bed;
  bed.setDocuments(bed.folder / "");
  bed.keptHome = bed.folder / "nobody/home";

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(WindowsSpecialFolders, WhereTheHomeIsNotKnownNothingIsGivenOut) {
  WindowsSpecialFoldersBed bed;
  bed.makeFolder(bed.folder / "papers");
  bed.setDocuments(bed.folder / "papers");
  ASSERT_NE(bed.folders().path(SpecialFolder::personal), std::nullopt);

  bed.keptHome = std::nullopt;

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

// Without a temporary folder in the environment the system names these two.
TEST(WindowsSpecialFolders, TheSystemsOwnFolderIsNeverTheTemporaryOne) {
  WindowsSpecialFoldersBed bed;

  bed.setTemporary(bed.folder / "system");
  EXPECT_EQ(bed.folders().temporaryPath(), std::nullopt);

  bed.makeFolder(bed.folder / "system/temp");
  bed.setTemporary(bed.folder / "system/temp");
  EXPECT_EQ(bed.folders().temporaryPath(), bed.folder / "system/temp/");
}

// What this system has at all depends on it; what it has is the shell's.
TEST(SystemFolders, AreTheShellsAndTheEnvironments) {
  const SystemFolders system = systemFolders([] { return nullptr; });
  const WindowsSpecialFolders folders(system);

  for (const SpecialFolder folder :
       {SpecialFolder::personal, SpecialFolder::favorites, SpecialFolder::recent,
        SpecialFolder::internetCache, SpecialFolder::cookies, SpecialFolder::history}) {
    EXPECT_EQ(folders.path(folder), system.special(folder));
  }
  EXPECT_NE(folders.path(SpecialFolder::personal), std::nullopt);
  EXPECT_TRUE(system.temporary()->ends_with("\\"));
  EXPECT_EQ(folders.temporaryPath(), system.temporary());
}

TEST(SystemFolders, KeepTheHomeAndTheSystemItself) {
  const SystemFolders system = systemFolders([] { return nullptr; });

  ASSERT_EQ(system.kept.size(), 2U);
  EXPECT_TRUE(isThere(system.kept[0].value()));
  EXPECT_TRUE(isThere(system.kept[1].value() + "\\System32"));
}

}  // namespace
}  // namespace zelvane::test
