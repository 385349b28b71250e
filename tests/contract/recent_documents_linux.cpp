#include <cstdlib>
#include <filesystem>
#include <functional>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/linux_folder_tree.h"
#include "platform/linux/linux_special_folders.h"
#include "platform/linux/recent_places.h"
#include "platform/linux/recently_used.h"
#include "platform/shared/live_folders.h"
#include "tests/support/listing.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::Environment;
using platform::OpenFolder;
using platform::RecentKind;
using platform::RecentPlace;
using platform::SpecialFolder;

constexpr const char* kList =
    "<?xml version=\"1.0\"?><xbel version=\"1.0\"><bookmark href=\"file:///private\"/></xbel>\n";

void ignoringErrors(const std::function<void()>& act) {
  try {
    act();
  } catch (const platform::Error&) {
    // It stays, and the rest has its turn.
  }
}

void eraseAll(OpenFolder& folder) {
  const Listing listing = listOf(folder);
  for (const std::string& name : listing.subfolders) {
    ignoringErrors([&] { eraseAll(*folder.openSubfolder(name)); });
    ignoringErrors([&] { folder.removeFolder(name); });
  }
  for (const std::string& name : listing.files) ignoringErrors([&] { folder.removeFile(name); });
}

class RecentDocuments : public testing::Test {
 protected:
  // Where the place is in the throw-away folder, with something for each "*".
  static std::string instanceOf(const RecentPlace& place) {
    std::string path(place.path);
    for (const auto& [start, folderName] : {std::pair{"{home}", "home"},
                                            {"{data}", "home/.local/share"},
                                            {"{cache}", "home/.cache"}}) {
      if (path.starts_with(start)) path.replace(0, std::string_view(start).size(), folderName);
    }
    for (std::size_t star = path.find('*'); star != std::string::npos; star = path.find('*')) {
      path.replace(star, 1, "some.name");
    }
    return path;
  }

  // What is in that place on a used desktop.
  void fill(const RecentPlace& place) const {
    if (place.kind == RecentKind::folder) {
      folder.write(instanceOf(place) + "/document");
      folder.write(instanceOf(place) + "/large/.hidden");
    } else {
      folder.write(instanceOf(place), kList);
    }
  }

  bool isErased(const RecentPlace& place) const {
    const std::string path = instanceOf(place);
    switch (place.kind) {
      case RecentKind::list:
        return folder.read(path).find("private") == std::string::npos;
      case RecentKind::copy:
        return !folder.has(path);
      default:
        return folder.has(path) && fs::is_empty(folder / path);
    }
  }

  std::vector<RecentPlace> placesOnTheDisk() const {
    std::vector<RecentPlace> places;
    for (const RecentPlace& place : platform::recentPlaces()) {
      if (place.kind != RecentKind::activities) places.push_back(place);
    }
    return places;
  }

  void erase() { eraseAll(*live.openRoot(live.path(SpecialFolder::recent).value())); }

  ThrowAwayFolder folder;
  Environment environment = environmentIn(folder);
  platform::LinuxSpecialFolders plain{environment};
  platform::LinuxFolderTree tree;
  platform::RecentlyUsed recentlyUsed{environment};
  platform::LiveFolders live{plain, tree, {recentlyUsed}};
};

TEST_F(RecentDocuments, EachPlaceIsErasedAndItsNeighboursStay) {
  for (const RecentPlace& place : placesOnTheDisk()) {
    fill(place);
    folder.write(fs::path(instanceOf(place)).parent_path().string() + "/neighbour", "kept");
  }

  erase();

  for (const RecentPlace& place : placesOnTheDisk()) {
    EXPECT_TRUE(isErased(place)) << place.path;
    EXPECT_EQ(folder.read(fs::path(instanceOf(place)).parent_path().string() + "/neighbour"),
              "kept");
  }
}

TEST_F(RecentDocuments, ALinkInPlaceOfAnyOfThemStaysWithWhatItLeadsTo) {
  folder.write("elsewhere/document", kList);
  folder.write("elsewhere.xbel", kList);
  for (const RecentPlace& place : platform::recentPlaces()) {
    const fs::path path = folder / instanceOf(place);
    fs::create_directories(path.parent_path());
    fs::create_symlink(folder / (place.kind == RecentKind::folder ? "elsewhere" : "elsewhere.xbel"),
                       path);
  }

  erase();

  for (const RecentPlace& place : platform::recentPlaces()) {
    EXPECT_TRUE(fs::is_symlink(folder / instanceOf(place))) << place.path;
  }
  EXPECT_EQ(folder.read("elsewhere/document"), kList);
  EXPECT_EQ(folder.read("elsewhere.xbel"), kList);
}

TEST_F(RecentDocuments, NoLinkOnTheWayIsPassedThrough) {
  folder.write("elsewhere/42/.local/share/recently-used.xbel", kList);
  folder.write("elsewhere/data/recently-used.xbel", kList);
  folder.write("home/.recently-used");
  fs::create_directories(folder / "home/snap");
  fs::create_directories(folder / "home/.var/app");
  fs::create_directory_symlink(folder / "elsewhere", folder / "home/snap/editor");
  fs::create_directory_symlink(folder / "elsewhere", folder / "home/.var/app/org.editor");

  EXPECT_EQ(live.path(SpecialFolder::recent), folder / "home/.recently-used");
}

TEST_F(RecentDocuments, EachRevisionOfASnapIsFoundOnceWhicheverIsTheCurrentOne) {
  for (const std::string revision : {"41", "42", "common"}) {
    folder.write("home/snap/editor/" + revision + "/.local/share/recently-used.xbel", kList);
  }
  fs::create_directory_symlink("42", folder / "home/snap/editor/current");

  EXPECT_EQ(listOf(*live.openRoot(live.path(SpecialFolder::recent).value())).files,
            (std::vector<std::string>{"snap_editor_41_.local_share_recently-used.xbel",
                                      "snap_editor_42_.local_share_recently-used.xbel",
                                      "snap_editor_common_.local_share_recently-used.xbel"}));
}

TEST_F(RecentDocuments, TheDataFolderItselfMayBeALink) {
  folder.write("disk/share/recently-used.xbel", kList);
  fs::create_directories(folder / "home/.local");
  fs::create_directory_symlink(folder / "disk/share", environment.dataHome);

  erase();

  EXPECT_EQ(folder.read("disk/share/recently-used.xbel").find("private"), std::string::npos);
}

TEST_F(RecentDocuments, AFolderInAListsPlaceIsNotTouched) {
  folder.write("home/.recently-used.xbel/precious");
  folder.write("home/.recently-used");

  erase();

  EXPECT_TRUE(folder.has("home/.recently-used.xbel/precious"));
}

TEST_F(RecentDocuments, AThumbnailInUseStaysAndTheOthersGo) {
  const std::string used = folder.write("home/.cache/thumbnails/normal/used.png");
  folder.write("home/.cache/thumbnails/normal/free.png");
  const platform::Descriptor held(open(used.c_str(), O_RDONLY | O_CLOEXEC));

  erase();

  EXPECT_TRUE(folder.has("home/.cache/thumbnails/normal/used.png"));
  EXPECT_FALSE(folder.has("home/.cache/thumbnails/normal/free.png"));
}

TEST_F(RecentDocuments, WithoutTheActivityManagerItsDatabaseIsLeft) {
  // Nobody's desktop is asked, and least of all that of whoever runs the tests.
  setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
  const std::string database = "home/.local/share/kactivitymanagerd/resources/database";
  folder.write(database, "no database at all");
  folder.write("home/.recently-used");

  erase();

  EXPECT_EQ(folder.read(database), "no database at all");
  EXPECT_FALSE(folder.has("home/.recently-used"));
}

TEST_F(RecentDocuments, AFolderOfAnOtherOwnerIsNotEntered) {
  const std::string list = folder.write("home/.var/app/org.theirs/data/recently-used.xbel", kList);
  const std::string thumbnail = folder.write("home/.thumbnails/normal/theirs.png");
  folder.write("home/.recently-used");
  constexpr uid_t kNobody = 65534;
  if (geteuid() != 0 ||
      chown((folder / "home/.var/app/org.theirs").c_str(), kNobody, kNobody) != 0) {
    GTEST_SKIP() << "only root may give files away";
  }
  ASSERT_EQ(chown((folder / "home/.thumbnails").c_str(), kNobody, kNobody), 0);

  erase();

  EXPECT_TRUE(fs::exists(thumbnail));
  EXPECT_EQ(folder.read("home/.var/app/org.theirs/data/recently-used.xbel"), kList);
  EXPECT_FALSE(folder.has("home/.recently-used"));
}

}  // namespace
}  // namespace zelvane::test
