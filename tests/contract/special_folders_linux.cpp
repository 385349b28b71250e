#include <filesystem>
#include <optional>

#include "platform/linux/linux_special_folders.h"
#include "platform/linux/user_folders.h"
#include "tests/contract/special_folders_contract.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Environment;
using platform::LinuxSpecialFolders;
using platform::SpecialFolder;
using platform::userFolder;

class LinuxSpecialFoldersBed : public SpecialFoldersBed {
 public:
  LinuxSpecialFoldersBed() {
    fs::create_directories(environment.configHome);
    fs::create_directory(folder / "usual");
  }

  platform::SpecialFolders& folders() override {
    return folders_.emplace(environment, folder / "usual");
  }
  std::string home() const override { return environment.home; }
  void makeFolder(const std::string& path) override { fs::create_directories(path); }
  void makeFile(const std::string& path) override {
    folder.write(fs::relative(path, folder.path()).string());
  }
  void removeFolder(const std::string& path) override { fs::remove(path); }
  void setDocuments(const std::string& path) override {
    write("XDG_DOCUMENTS_DIR=\"" + path + "\"\n");
  }
  void setTemporary(const std::string& path) override { environment.tmpDir = path; }

  // The desktop's list of folders.
  void write(const std::string& list) const { folder.write("home/.config/user-dirs.dirs", list); }

  ThrowAwayFolder folder;
  Environment environment = environmentIn(folder);

 private:
  std::optional<LinuxSpecialFolders> folders_;
};

INSTANTIATE_TEST_SUITE_P(Linux, SpecialFoldersContract,
                         testing::Values([]() -> std::unique_ptr<SpecialFoldersBed> {
                           return std::make_unique<LinuxSpecialFoldersBed>();
                         }));

TEST(LinuxSpecialFolders, WithoutAListTheDocumentsAreInTheUsualPlace) {
  LinuxSpecialFoldersBed bed;
  bed.makeFolder(bed.home() + "/Documents");

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), bed.home() + "/Documents");
}

TEST(LinuxSpecialFolders, AListThatNamesTheHomeSwitchesTheUsualPlaceOff) {
  LinuxSpecialFoldersBed bed;
  bed.makeFolder(bed.home() + "/Documents");
  bed.write("XDG_DOCUMENTS_DIR=\"$HOME/\"\n");

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(LinuxSpecialFolders, AListThatCannotBeReadSwitchesTheUsualPlaceOff) {
  LinuxSpecialFoldersBed bed;
  bed.makeFolder(bed.home() + "/Documents");
  bed.makeFolder(bed.environment.configHome + "/user-dirs.dirs");

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(LinuxSpecialFolders, ALinkToTheHomeIsTheHome) {
  LinuxSpecialFoldersBed bed;
  fs::create_directory_symlink(bed.home(), bed.folder / "link");
  bed.setDocuments(bed.folder / "link");

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(LinuxSpecialFolders, AHomeThatIsALinkIsHeldByTheFoldersAboveItsTarget) {
  LinuxSpecialFoldersBed bed;
  bed.makeFolder(bed.folder / "disk/homes/user");
  fs::create_directory_symlink(bed.folder / "disk/homes/user", bed.folder / "link");
  bed.setDocuments(bed.folder / "disk");
  bed.environment.home = bed.folder / "link";

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(LinuxSpecialFolders, AHomeThatDoesNotExistProtectsTheFoldersAboveIt) {
  LinuxSpecialFoldersBed bed;
  bed.setDocuments(bed.folder.path().string());
  bed.environment.home = bed.folder / "nobody/home";

  EXPECT_EQ(bed.folders().path(SpecialFolder::personal), std::nullopt);
}

TEST(LinuxSpecialFolders, TheTemporaryFolderIsTheUsualOneWhereTheSetOneWillNotDo) {
  LinuxSpecialFoldersBed bed;

  bed.setTemporary(bed.folder / "nothing");
  EXPECT_EQ(bed.folders().temporaryPath(), bed.folder / "usual/");

  bed.setTemporary(bed.home());
  EXPECT_EQ(bed.folders().temporaryPath(), bed.folder / "usual/");

  bed.setTemporary("/");
  EXPECT_EQ(bed.folders().temporaryPath(), bed.folder / "usual/");
}

TEST(LinuxSpecialFolders, TheDesktopAloneHasNoOtherSpecialFolders) {
  LinuxSpecialFoldersBed bed;

  for (const SpecialFolder folder :
       {SpecialFolder::favorites, SpecialFolder::recent, SpecialFolder::internetCache,
        SpecialFolder::cookies, SpecialFolder::history}) {
    EXPECT_EQ(bed.folders().path(folder), std::nullopt);
  }
}

TEST(UserFolders, AreNamedBelowTheHomeOrByAWholePath) {
  EXPECT_EQ(userFolder("D=\"$HOME/Papers\"", "D", "/home/u"), "/home/u/Papers");
  EXPECT_EQ(userFolder("D=\"/disk/Papers/\"\n", "D", "/home/u"), "/disk/Papers");
  EXPECT_EQ(userFolder("D=\"$HOME\"", "D", "/home/u"), "/home/u");
}

TEST(UserFolders, ABackslashProtectsTheCharacterBehindIt) {
  EXPECT_EQ(userFolder("D=\"/a\\\"b\\\\c\\$d\"", "D", "/home/u"), "/a\"b\\c$d");
}

TEST(UserFolders, TheLastLineOfAKeyCounts) {
  EXPECT_EQ(userFolder("D=\"/a\"\nE=\"/b\"\nD=\"/c\"\n", "D", "/home/u"), "/c");
}

TEST(UserFolders, LinesInAnyOtherFormAreNoLines) {
  for (const char* line : {"", "D", "D=", "D=/a", "D=\"a\"", "D=\"\"", "D=\"", "#D=\"/a\"",
                           "XD=\"/a\"", "D=\"$HOMER/a\""}) {
    EXPECT_EQ(userFolder(line, "D", "/home/u"), std::nullopt) << line;
  }
}

}  // namespace
}  // namespace zelvane::test
