#include <filesystem>
#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/linux_recycle_bin.h"
#include "platform/linux/mounted_volumes.h"
#include "platform/linux/trash_places.h"
#include "tests/contract/recycle_bin_contract.h"
#include "tests/support/linux/private_mounts.h"
#include "tests/support/no_events.h"
#include "tests/support/throw_away_environment.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Error;
using platform::LinuxRecycleBin;

const std::string kUser = std::to_string(geteuid());

// A home, and a folder that the table of mounts calls a volume.
// A path as the kernel writes it into its table of mounts, which parts fields by blanks.
std::string asInTable(const std::string& path) {
  std::string text;
  for (const char letter : path) {
    if (letter == ' ') {
      text += "\\040";
    } else {
      text += letter;
    }
  }
  return text;
}

class LinuxRecycleBinBed : public RecycleBinBed {
 public:
  LinuxRecycleBinBed() {
    fs::create_directories(folder / "home/.local/share");
    fs::create_directories(folder / "volume");
    folder.write("mounts",
                 "21 1 8:1 / " + asInTable(folder / "volume") + " rw - ext4 /dev/sdb1 rw\n");
  }

  platform::RecycleBin& bin() override { return bin_; }

  void put(const std::string& name, std::size_t bytes) override {
    putInto(kHomeTrash, name, bytes);
  }
  void putFromOtherVolume(const std::string& name, std::size_t bytes) override {
    putInto(kVolumeTrash, name, bytes);
  }
  void putRefusing(const std::string& name) override {
    put(name + "/closed/file", 1);
    fs::permissions(folder / (kHomeTrash + "/files/" + name + "/closed"), fs::perms::none);
    note(kHomeTrash, name);
  }
  bool has(const std::string& name) const override {
    return hasIn(kHomeTrash, name) || hasIn(kVolumeTrash, name);
  }
  std::string whyNoRefusals() const override {
    return geteuid() == 0 ? "root may read and write everything" : "";
  }

  void putInto(const std::string& trash, const std::string& name, std::size_t bytes) const {
    folder.write(trash + "/files/" + name, std::string(bytes, 'x'));
    note(trash, name.substr(0, name.find('/')));
  }
  void note(const std::string& trash, const std::string& name) const {
    folder.write(trash + "/info/" + name + ".trashinfo", "[Trash Info]\nPath=/somewhere\n");
  }
  bool hasIn(const std::string& trash, const std::string& name) const {
    return folder.has(trash + "/files/" + name) &&
           folder.has(trash + "/info/" + name + ".trashinfo");
  }

  const std::string kHomeTrash = "home/.local/share/Trash";
  const std::string kVolumeTrash = "volume/.Trash-" + kUser;
  ThrowAwayFolder folder;

 private:
  LinuxRecycleBin bin_{environmentIn(folder), folder / "mounts"};
};

INSTANTIATE_TEST_SUITE_P(Linux, RecycleBinContract,
                         testing::Values([]() -> std::unique_ptr<RecycleBinBed> {
                           return std::make_unique<LinuxRecycleBinBed>();
                         }));

class LinuxRecycleBinTest : public testing::Test {
 protected:
  // Makes the volume's shared trash folder, with this user's in it.
  void makeSharedTrash(mode_t mode) {
    bed.putInto("volume/.Trash/" + kUser, "shared", 5);
    ASSERT_EQ(chmod((bed.folder / "volume/.Trash").c_str(), mode), 0);
  }

  LinuxRecycleBinBed bed;
};

TEST_F(LinuxRecycleBinTest, FilesAndNotesAreGoneAndTheirFoldersStay) {
  bed.put("a.txt", 3);

  bed.empty();

  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/files"));
  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/info"));
}

TEST_F(LinuxRecycleBinTest, WholeFoldersAreErasedWithTheirHiddenFiles) {
  bed.put("folder/.hidden", 1);
  bed.put("folder/inner/file", 2);
  bed.put(".hiddenFolder/file", 4);

  EXPECT_EQ(bed.empty(), 7U);
  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/files"));
}

TEST_F(LinuxRecycleBinTest, AReadOnlyFolderIsErased) {
  bed.put("folder/file", 1);
  fs::permissions(bed.folder / "home/.local/share/Trash/files/folder",
                  fs::perms::owner_read | fs::perms::owner_exec);

  EXPECT_EQ(bed.empty(), 1U);
  EXPECT_FALSE(bed.folder.has("home/.local/share/Trash/files/folder"));
}

TEST_F(LinuxRecycleBinTest, AnEmptyFolderThatCannotBeReadIsErased) {
  bed.put("folder/closed/file", 1);
  fs::remove(bed.folder / "home/.local/share/Trash/files/folder/closed/file");
  fs::permissions(bed.folder / "home/.local/share/Trash/files/folder/closed", fs::perms::none);

  bed.empty();

  EXPECT_FALSE(bed.folder.has("home/.local/share/Trash/files/folder"));
}

TEST_F(LinuxRecycleBinTest, LinksAreErasedAndWhatTheyLeadToStays) {
  bed.folder.write("precious/file");
  bed.put("folder/file", 1);
  fs::create_directory_symlink(bed.folder / "precious",
                               bed.folder / "home/.local/share/Trash/files/linkToFolder");
  fs::create_directory_symlink(bed.folder / "precious",
                               bed.folder / "home/.local/share/Trash/files/folder/innerLink");

  bed.empty();

  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/files"));
  EXPECT_TRUE(bed.folder.has("precious/file"));
}

TEST_F(LinuxRecycleBinTest, ThingsWithoutNotesAndNotesWithoutThingsAreErased) {
  bed.folder.write("home/.local/share/Trash/files/withoutNote", "12");
  bed.note("home/.local/share/Trash", "withoutThing");

  EXPECT_EQ(bed.empty(), 2U);
  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/files"));
  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/info"));
}

TEST_F(LinuxRecycleBinTest, WhatOtherProgramsCouldNotExpungeAndTheListOfSizesAreErased) {
  bed.folder.write("home/.local/share/Trash/expunged/123/file", "12");
  bed.folder.write("home/.local/share/Trash/directorysizes", "4096 1700000000 folder\n");

  EXPECT_EQ(bed.empty(), 2U);
  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/expunged"));
  EXPECT_FALSE(bed.folder.has("home/.local/share/Trash/directorysizes"));
}

TEST_F(LinuxRecycleBinTest, AFileWithAnotherNameOutsideFreesNothing) {
  bed.put("a.txt", 3);
  fs::create_hard_link(bed.folder / "home/.local/share/Trash/files/a.txt",
                       bed.folder / "home/kept");

  EXPECT_EQ(bed.empty(), 0U);
  EXPECT_TRUE(bed.folder.has("home/kept"));
}

TEST_F(LinuxRecycleBinTest, AHomeTrashThatIsALinkIsLeftAlone) {
  bed.putInto("elsewhere", "a.txt", 3);
  fs::create_directory_symlink(bed.folder / "elsewhere", bed.folder / "home/.local/share/Trash");

  EXPECT_EQ(bed.empty(), 0U);
  EXPECT_TRUE(bed.hasIn("elsewhere", "a.txt"));
}

TEST_F(LinuxRecycleBinTest, AVolumeTrashThatIsALinkIsLeftAlone) {
  bed.putInto("elsewhere", "a.txt", 3);
  fs::create_directory_symlink(bed.folder / "elsewhere", bed.folder / bed.kVolumeTrash);

  EXPECT_EQ(bed.empty(), 0U);
  EXPECT_TRUE(bed.hasIn("elsewhere", "a.txt"));
}

TEST_F(LinuxRecycleBinTest, AFilesFolderThatIsALinkIsLeftAloneAndReported) {
  bed.folder.write("precious/file");
  bed.put("a.txt", 3);
  fs::remove_all(bed.folder / "home/.local/share/Trash/files");
  fs::create_directory_symlink(bed.folder / "precious",
                               bed.folder / "home/.local/share/Trash/files");

  EXPECT_THROW(bed.empty(), Error);
  EXPECT_TRUE(bed.folder.has("precious/file"));
}

TEST_F(LinuxRecycleBinTest, TheSharedTrashOfAVolumeCountsWithItsStickyBit) {
  makeSharedTrash(01777);

  EXPECT_EQ(bed.empty(), 5U);
}

TEST_F(LinuxRecycleBinTest, TheSharedTrashOfAVolumeIsLeftAloneWithoutItsStickyBit) {
  makeSharedTrash(0777);

  EXPECT_EQ(bed.empty(), 0U);
  EXPECT_TRUE(bed.hasIn("volume/.Trash/" + kUser, "shared"));
}

TEST_F(LinuxRecycleBinTest, ASharedTrashThatIsALinkIsLeftAlone) {
  makeSharedTrash(01777);
  fs::rename(bed.folder / "volume/.Trash", bed.folder / "elsewhere");
  fs::create_directory_symlink(bed.folder / "elsewhere", bed.folder / "volume/.Trash");

  EXPECT_EQ(bed.empty(), 0U);
  EXPECT_TRUE(bed.hasIn("elsewhere/" + kUser, "shared"));
}

TEST_F(LinuxRecycleBinTest, ATrashOfAnotherUserIsLeftAlone) {
  bed.putInto("volume/.Trash-4242", "a.txt", 3);

  EXPECT_EQ(bed.empty(), 0U);
  EXPECT_TRUE(bed.hasIn("volume/.Trash-4242", "a.txt"));
}

// The standard wants it escaped, and below the volume on a volume; some write the plain path.
TEST_F(LinuxRecycleBinTest, NotesAreErasedWhicheverWayTheirPathIsWritten) {
  bed.putFromOtherVolume("escaped", 1);
  bed.folder.write(bed.kVolumeTrash + "/info/escaped.trashinfo",
                   "[Trash Info]\nPath=l%C3%A4ne%20a/b\nDeletionDate=2026-11-21T07:55:25\n");
  bed.putFromOtherVolume("plain", 2);
  bed.folder.write(bed.kVolumeTrash + "/info/plain.trashinfo",
                   "[Trash Info]\nPath=/mnt/stick/l\u00e4ne a/b\nDeletionDate=\n");

  EXPECT_EQ(bed.empty(), 3U);
  EXPECT_TRUE(fs::is_empty(bed.folder / (bed.kVolumeTrash + "/files")));
  EXPECT_TRUE(fs::is_empty(bed.folder / (bed.kVolumeTrash + "/info")));
}

TEST_F(LinuxRecycleBinTest, EventsAreDeliveredAfterEachThingAlsoInsideTrees) {
  bed.put("tree/a", 1);
  bed.put("tree/b", 1);
  bool treeWasThere = false;
  bed.pump.postIn(4, [&] { treeWasThere = bed.folder.has(bed.kHomeTrash + "/files/tree"); });

  bed.empty();

  EXPECT_TRUE(treeWasThere);
}

TEST_F(LinuxRecycleBinTest, ATreeDeeperThanAnyPathIsErased) {
  std::string name = "deep";
  for (int level = 0; level < 100; ++level) name += "/d";
  bed.put(name, 1);

  EXPECT_EQ(bed.empty(), 1U);
  EXPECT_TRUE(fs::is_empty(bed.folder / "home/.local/share/Trash/files"));
}

TEST_F(LinuxRecycleBinTest, WithoutATableOfMountsTheHomeIsEmptiedAndTheRestReported) {
  bed.put("a.txt", 3);
  fs::remove(bed.folder / "mounts");

  EXPECT_THROW(bed.empty(), Error);
  EXPECT_FALSE(bed.has("a.txt"));
}

// The lines of the kernel's table about this folder: the trash of the real volumes is not a test's.
// Its own name suffices, and has nothing in it that the table writes in another way.
std::string realMountsBelow(const ThrowAwayFolder& folder) {
  std::ifstream table("/proc/self/mountinfo");
  std::string lines;
  for (std::string line; std::getline(table, line);) {
    if (line.find(folder.path().filename().string()) != std::string::npos) lines += line + "\n";
  }
  return lines;
}

TEST(LinuxRecycleBin, AMountedVolumesTrashIsEmptiedAndAMountInsideItIsNotEntered) {
  const ThrowAwayFolder folder;
  PrivateMounts mounts;
  if (!mounts.whyNot().empty()) GTEST_SKIP() << mounts.whyNot();
  mounts.mountVolume(folder / "my volume");
  const std::string trash = "my volume/.Trash-" + kUser;
  folder.write(trash + "/files/a.txt", "123");
  folder.write("precious/file");
  mounts.mountAgain(folder / "precious", folder / (trash + "/files/mounted"));
  folder.write("mounts", realMountsBelow(folder));
  LinuxRecycleBin bin(environmentIn(folder), folder / "mounts");
  NoEvents pump;

  EXPECT_THROW(bin.empty(pump), Error);

  EXPECT_FALSE(folder.has(trash + "/files/a.txt"));
  EXPECT_TRUE(folder.has("precious/file"));
}

// Only a folder of another user's, put in the trash's place by a mount, shows this to everybody.
TEST(TrashPlaces, AMountedFolderOfAnotherUserIsNone) {
  const ThrowAwayFolder folder;
  PrivateMounts mounts;
  if (!mounts.whyNot().empty()) GTEST_SKIP() << mounts.whyNot();
  const std::string place = folder / (".Trash-" + kUser);
  fs::create_directory(place);
  ASSERT_EQ(platform::openTrashPlaces(folder / "share", {folder.path().string()}).size(), 1U);

  if (chown(place.c_str(), 4242, 4242) != 0) mounts.mountAgain("/usr", place);

  EXPECT_TRUE(platform::openTrashPlaces(folder / "share", {folder.path().string()}).empty());
}

TEST(MountedVolumes, AreTheMountPointsOfTheTableWithTheirNamesDecoded) {
  const std::string table =
      "22 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
      "36 22 98:0 /top /media/my\\040\\134disk\\011\\012 rw master:1 shared:2 - vfat /dev/sdb1 rw\n"
      "40 22 0:33 / /media/stick rw - fuse.ntfs-3g /dev/sdc1 rw\n";

  EXPECT_EQ(platform::mountedVolumes(table),
            (std::vector<std::string>{"/", "/media/my \\disk\t\n", "/media/stick"}));
}

TEST(MountedVolumes, AreNeitherThoseWithoutFilesNorThoseThatALookWouldMount) {
  const std::string table =
      "23 22 0:21 / /proc rw - proc proc rw\n"
      "24 22 0:22 / /sys rw - sysfs sysfs rw\n"
      "25 22 0:23 / /net rw - autofs systemd-1 rw\n"
      "26 22 0:24 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n";

  EXPECT_TRUE(platform::mountedVolumes(table).empty());
}

TEST(MountedVolumes, LinesThatAreNotUnderstoodAreSkipped) {
  const std::string table =
      "\n"
      "nonsense\n"
      "1 2 3 4 /a 6\n"
      "1 2 3 4 /b 6 7 -\n"
      "1 2 3 4 /c 6 - ext4";

  EXPECT_EQ(platform::mountedVolumes(table), std::vector<std::string>{"/c"});
}

}  // namespace
}  // namespace zelvane::test
