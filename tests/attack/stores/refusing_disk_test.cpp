// The stores are sound, and the disk takes nothing.
#include <cstring>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include "tests/attack/stores/plain_rights.h"
#include "tests/attack/stores/used_home.h"
#include "tests/support/linux/private_mounts.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;

class RefusingDisk : public testing::Test {
 protected:
  void expectThatTheStoresAreAsBefore() const {
    EXPECT_EQ(home.folder.read(fileOf(Store::settings)), soundContentOf(Store::settings));
    EXPECT_EQ(home.folder.read(fileOf(Store::hive)), soundContentOf(Store::hive));
    EXPECT_EQ(home.leftovers(), std::vector<std::string>{});
  }

  // The saves that tell, and nothing else: what can be read is no trouble at the start.
  void expectThatTheSavesTell(const Visit& seen) const {
    expectTold(seen.toldAtTheStart, 0, "");
    expectTold(seen.toldLater, kSavesThatTell, home.path(Store::settings));
    expectThatTheProgramWorked(seen, home);
    expectThatTheStoresAreAsBefore();
  }

  const UsedHome home;
  const std::string stores = home.folder / kStoreFolder;
};

TEST_F(RefusingDisk, AFolderThatMayNotBeWrittenIsToldByTheSaves) {
  const PlainRights plain;
  fs::permissions(stores, fs::perms(0500));

  const Visit seen = visit(home);

  expectThatTheSavesTell(seen);
  fs::permissions(stores, fs::perms(0700));
  expectThatAllIsWellAgain(home);
}

TEST_F(RefusingDisk, ABrokenStoreThatCannotBeGivenAnotherNameStays) {
  const PlainRights plain;
  home.folder.write(fileOf(Store::settings), "broken");
  fs::permissions(stores, fs::perms(0500));

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 1, home.path(Store::settings));
  expectTold(seen.toldLater, kSavesThatTell, home.path(Store::settings));
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read(fileOf(Store::settings)), "broken");
}

TEST_F(RefusingDisk, ABrokenHiveThatCannotBeGivenAnotherNameStays) {
  const PlainRights plain;
  home.folder.write(fileOf(Store::hive), "broken");
  fs::permissions(stores, fs::perms(0500));

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 1, home.path(Store::hive));
  expectTold(seen.toldLater, kSavesThatTell, home.path(Store::settings));
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read(fileOf(Store::hive)), "broken");
}

TEST_F(RefusingDisk, AHomeInWhichNoFolderCanBeMadeIsToldByTheSaves) {
  const PlainRights plain;
  fs::remove_all(home.folder / "home/.config");
  fs::permissions(home.folder / "home", fs::perms(0500));

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 0, "");
  expectTold(seen.toldLater, kSavesThatTell, home.folder / "home/.config");
  expectThatTheProgramWorked(seen, home);
  fs::permissions(home.folder / "home", fs::perms(0700));
  expectThatAllIsWellAgain(home);
}

class RefusingDiskMount : public RefusingDisk {
 protected:
  void SetUp() override {
    if (!mounts_.whyNot().empty()) GTEST_SKIP() << mounts_.whyNot();
  }
  void TearDown() override { umount2(stores.c_str(), MNT_DETACH); }

  void makeReadOnly() const {
    mount(stores.c_str(), nullptr, MS_BIND);
    mount("none", nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY);
  }

  // A volume of its own for the stores, with no room for a single byte more.
  void makeFull() const {
    const std::string settings = home.folder.read(fileOf(Store::settings));
    const std::string hive = home.folder.read(fileOf(Store::hive));
    mount("none", "tmpfs", 0, "size=64k,mode=0700");
    home.folder.write(fileOf(Store::settings), settings);
    home.folder.write(fileOf(Store::hive), hive);
    const int filler = open((stores + "/filler").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    const std::string page(4096, 'x');
    while (write(filler, page.data(), page.size()) > 0) continue;
    close(filler);
  }
  void makeRoom() const { fs::remove(stores + "/filler"); }

 private:
  void mount(const char* source, const char* type, unsigned long flags,
             const char* options = nullptr) const {
    if (::mount(source, stores.c_str(), type, flags, options) != 0) {
      throw fs::filesystem_error("mount", stores, {errno, std::generic_category()});
    }
  }

  PrivateMounts mounts_;
};

TEST_F(RefusingDiskMount, AReadOnlyOneIsToldByTheSaves) {
  makeReadOnly();

  const Visit seen = visit(home);

  expectThatTheSavesTell(seen);
}

TEST_F(RefusingDiskMount, ABrokenStoreOnAReadOnlyOneStays) {
  home.folder.write(fileOf(Store::settings), "neither");
  home.folder.write(fileOf(Store::hive), "nor");
  makeReadOnly();

  const Visit seen = visit(home);

  ASSERT_EQ(seen.toldAtTheStart.size(), 2U);
  expectTold({seen.toldAtTheStart[0]}, 1, home.path(Store::settings));
  expectTold({seen.toldAtTheStart[1]}, 1, home.path(Store::hive));
  expectTold(seen.toldLater, kSavesThatTell, home.path(Store::settings));
  expectThatTheProgramWorked(seen, home);
  EXPECT_EQ(home.folder.read(fileOf(Store::settings)), "neither");
  EXPECT_EQ(home.folder.read(fileOf(Store::hive)), "nor");
}

TEST_F(RefusingDiskMount, AFullOneIsToldByTheSavesUntilThereIsRoom) {
  makeFull();

  const Visit seen = visit(home);

  expectThatTheSavesTell(seen);
  for (const std::string& text : seen.toldLater) {
    EXPECT_TRUE(text.starts_with("Error: 61 - ")) << text;
  }
  makeRoom();
  expectThatAllIsWellAgain(home);
}

TEST_F(RefusingDiskMount, OnAFullOneABrokenStoreIsSetAsideAllTheSame) {
  home.folder.write(fileOf(Store::settings), "broken");
  makeFull();

  const Visit seen = visit(home);

  expectTold(seen.toldAtTheStart, 1, home.folder / setAsideFileOf(Store::settings));
  EXPECT_EQ(home.folder.read(setAsideFileOf(Store::settings)), "broken");
  expectTold(seen.toldLater, kSavesThatTell, home.path(Store::settings));
  expectThatTheProgramWorked(seen, home);
  makeRoom();
  expectThatAllIsWellAgain(home);
}

}  // namespace
}  // namespace zelvane::test
