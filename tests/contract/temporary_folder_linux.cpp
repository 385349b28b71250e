#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/linux/linux_special_folders.h"
#include "platform/linux/temporary_rules.h"
#include "tests/contract/folder_tree_bed_linux.h"
#include "tests/support/listing.h"
#include "tests/support/throw_away_environment.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::EntryKind;
using platform::Error;
using platform::ErrorNumber;
using platform::LinuxFolderTree;
using platform::LinuxSpecialFolders;

// The root is the folder of temporary files.
class TemporaryFolderBed : public LinuxFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return tree_; }

  platform::Environment environmentWith(const std::string& temporary) const {
    platform::Environment environment = environmentIn(folder);
    environment.tmpDir = temporary;
    return environment;
  }

 private:
  LinuxSpecialFolders folders_{environmentWith(root())};
  LinuxFolderTree tree_{{}, folders_};
};

INSTANTIATE_TEST_SUITE_P(LinuxTemporary, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<TemporaryFolderBed>();
                         }));

class LinuxTemporaryFolder : public testing::Test {
 protected:
  std::unique_ptr<platform::OpenFolder> openRoot() { return bed.tree().openRoot(bed.root()); }

  // What comes of deleting a thing or opening it, 0 for no error.
  template <typename Act>
  static int errorOf(const Act& act) {
    try {
      act();
    } catch (const Error& error) {
      return static_cast<int>(error.number());
    }
    return 0;
  }
  static constexpr int kDenied = static_cast<int>(ErrorNumber::permissionDenied);

  static std::string instanceOf(std::string_view pattern) {
    std::string name(pattern);
    if (const std::size_t star = name.find('*'); star != std::string::npos) {
      name.replace(star, 1, "0");
    }
    return name;
  }

  TemporaryFolderBed bed;
};

TEST_F(LinuxTemporaryFolder, WhatServicesHaveThereIsListedAndRefused) {
  for (const auto& [pattern, kind, whose] : platform::serviceNames()) {
    const std::string name = instanceOf(pattern);
    kind == EntryKind::folder ? bed.addFile(name + "/inner") : bed.addFile(name);
  }
  const auto root = openRoot();

  for (const auto& [pattern, kind, whose] : platform::serviceNames()) {
    const std::string name = instanceOf(pattern);
    EXPECT_EQ(errorOf([&] { root->openSubfolder(name); }), kDenied) << name;
    EXPECT_EQ(errorOf([&] { root->removeFolder(name); }), kDenied) << name;
    EXPECT_EQ(errorOf([&] { root->removeFile(name); }), kDenied) << name;
    EXPECT_TRUE(bed.has(name));
  }
  EXPECT_FALSE(listOf(*root).subfolders.empty());
}

TEST_F(LinuxTemporaryFolder, TheSameNamesMeanNothingFartherDown) {
  bed.addFile("leftover/ssh-agent/file");
  bed.addFile("leftover/.X11-unix/file");

  eraseBelow(*openRoot());

  EXPECT_FALSE(bed.has("leftover"));
}

TEST_F(LinuxTemporaryFolder, AFileWithTheNameOfAServicesFolderGoes) {
  bed.addFile("ssh-notes.txt");
  bed.addLink("tmux-session", "anywhere");

  eraseBelow(*openRoot());

  EXPECT_TRUE(fs::is_empty(bed.root()));
}

TEST_F(LinuxTemporaryFolder, ASocketIsRefused) {
  bed.addSocket("socket");
  const auto root = openRoot();

  EXPECT_EQ(errorOf([&] { root->removeFile("socket"); }), kDenied);
  EXPECT_TRUE(bed.has("socket"));
}

TEST_F(LinuxTemporaryFolder, APipeIsRefused) {
  ASSERT_EQ(mkfifo(bed.path("pipe").c_str(), 0600), 0);
  const auto root = openRoot();

  EXPECT_EQ(errorOf([&] { root->removeFile("pipe"); }), kDenied);
  EXPECT_TRUE(bed.has("pipe"));
}

TEST_F(LinuxTemporaryFolder, AFolderWithASocketStaysWholeAndItsNeighboursGo) {
  bed.addFile("program/lock");
  bed.addFile("program/inner/file");
  bed.addSocket("program/socket");
  bed.addFile("leftover/file");
  bed.addFile("file");

  eraseBelow(*openRoot());

  EXPECT_TRUE(bed.has("program/lock"));
  EXPECT_TRUE(bed.has("program/inner/file"));
  EXPECT_FALSE(bed.has("leftover"));
  EXPECT_FALSE(bed.has("file"));
}

TEST_F(LinuxTemporaryFolder, AFolderWithASocketIsKnownWithoutBeingListed) {
  bed.addFile("program/lock");
  bed.addSocket("program/socket");
  const auto root = openRoot();
  const auto program = root->openSubfolder("program");

  EXPECT_EQ(errorOf([&] { program->removeFile("lock"); }), kDenied);
}

TEST_F(LinuxTemporaryFolder, ALinkInItsWayIsStillTheTemporaryFolder) {
  bed.addFile("ssh-agent/file");
  const LinuxSpecialFolders folders(bed.environmentWith(bed.folder / "way"));
  fs::create_directory_symlink(bed.root(), bed.folder / "way");
  LinuxFolderTree tree({}, folders);

  eraseBelow(*tree.openRoot(bed.root() + "//"));

  EXPECT_TRUE(bed.has("ssh-agent/file"));
}

TEST_F(LinuxTemporaryFolder, OtherRootsHaveNoSuchRules) {
  bed.addFile("inner/ssh-agent/file");
  bed.addFile("inner/file");

  eraseBelow(*bed.tree().openRoot(bed.path("inner")));

  EXPECT_TRUE(fs::is_empty(bed.path("inner")));
}

TEST_F(LinuxTemporaryFolder, WhatAnOtherOwnerHasThereIsRefused) {
  constexpr uid_t kNobody = 65534;
  bed.addFile("file");
  bed.addFile("leftover/theirs");
  bed.addFile("folder/own");
  const auto give = [&](const std::string& name) {
    return geteuid() == 0 && chown(bed.path(name).c_str(), kNobody, kNobody) == 0;
  };
  if (!give("file")) GTEST_SKIP() << "only root may give files away";
  ASSERT_TRUE(give("leftover/theirs") && give("folder"));
  const auto root = openRoot();

  EXPECT_EQ(errorOf([&] { root->removeFile("file"); }), kDenied);
  EXPECT_EQ(errorOf([&] { root->openSubfolder("folder"); }), kDenied);
  EXPECT_EQ(errorOf([&] { root->removeFolder("folder"); }), kDenied);
  EXPECT_EQ(errorOf([&] { root->openSubfolder("leftover")->removeFile("theirs"); }), kDenied);
  EXPECT_TRUE(bed.has("leftover/theirs"));
}

}  // namespace
}  // namespace zelvane::test
