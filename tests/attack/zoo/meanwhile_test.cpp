// What happens on the machine between two steps of an erasure, each thing at a known step.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <system_error>

#include <gtest/gtest.h>

#include "tests/attack/zoo/erasing.h"
#include "tests/attack/zoo/outcomes.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/zoo/zoo_case.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;

class WhileErasing : public testing::Test {
 protected:
  // Erases the root; `happen` comes after the first erased file.
  void eraseAndThen(const std::function<void()>& happen) {
    before = manifestOf(world.folder());
    const std::ptrdiff_t files = filesInTheRoot();
    bool happened = false;
    Meanwhile once([&](int) {
      if (happened || filesInTheRoot() == files) return;
      happened = true;
      happen();
    });
    erase(world.path(zooCase.erased), once);
    EXPECT_TRUE(happened);
  }

  std::ptrdiff_t filesInTheRoot() const {
    const fs::recursive_directory_iterator all(world.path(zooCase.erased));
    return std::count_if(begin(all), end(all), [](const auto& entry) {
      return entry.symlink_status().type() == fs::file_type::regular;
    });
  }

  testing::AssertionResult restIsUntouched() {
    return asItShould(outcomeOf(zooCase, world.kept(), before, manifestOf(world.folder())));
  }

  // Two folders of which one is still to be erased when the other's file is gone.
  void makeTwoFolders() {
    world.file("root/one/file");
    world.file("root/other/file");
    fs::remove_all(world.path("root/plain"));
  }
  std::string folderToCome() const {
    return fs::exists(world.path("root/one/file")) ? "root/one" : "root/other";
  }

  ThrowAwayFolder folder;
  ZooWorld world{folder.path()};
  ZooCase zooCase;
  Manifest before;
};

TEST_F(WhileErasing, AFolderSwappedForALinkBeforeItsTurnIsNotEntered) {
  makeTwoFolders();
  zooCase.mayStay = {"root/one*", "root/other*", "root/away*"};

  eraseAndThen([&] {
    const std::string name = folderToCome();
    fs::rename(world.path(name), world.path("root/away"));
    world.link(name, "../outside/folder");
  });

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(WhileErasing, AFolderMountedOverTheNextOneIsNotEntered) {
  makeTwoFolders();
  zooCase.mayStay = {"root/one*", "root/other*"};

  try {
    eraseAndThen([&] { world.mountAgain("outside/folder", folderToCome()); });
  } catch (const CannotBuild& reason) {
    GTEST_SKIP() << reason.what();
  }

  EXPECT_TRUE(restIsUntouched());
}

// The walk has no descriptors any more for the folders above the part that is moved, and climbs.
TEST_F(WhileErasing, APartMovedOutOfTheRootDoesNotLeadTheWalkThere) {
  fs::remove_all(world.path("root/plain"));
  world.deepFolders("root/deep", "d", 100);
  world.file("root/deep/file");
  world.file("outside/decoy/f");
  zooCase.mayStay = {"root/deep*", "outside/decoy", "outside/decoy/d*"};

  eraseAndThen([&] { fs::rename(world.path("root/deep/d/d"), world.path("outside/decoy/d")); });

  EXPECT_TRUE(restIsUntouched());
}

// Of the path above the root nobody can know what it is meant to be; once it is opened it is known.
TEST_F(WhileErasing, TheRootsPathTurnedIntoALinkLeadsNobodyAway) {
  for (const std::string name : {"1", "2", "3"}) {
    world.file("way/root/folder" + name + "/file");
    world.file("elsewhere/root/folder" + name + "/file");
  }
  zooCase.erased = "way/root";

  eraseAndThen([&] {
    fs::rename(world.path("way"), world.path("moved"));
    world.link("way", world.path("elsewhere"));
  });
  fs::remove(world.path("way"));
  fs::rename(world.path("moved"), world.path("way"));

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(WhileErasing, WhatVanishesCountsAsErasedAndTheRestGoes) {
  makeTwoFolders();
  world.deepFolders("root/one/deep", "d", 5);
  world.deepFolders("root/other/deep", "d", 5);

  eraseAndThen([&] { fs::remove_all(world.path(folderToCome())); });

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(WhileErasing, ARootThatVanishesEndsTheErasure) {
  zooCase.mayStay = {"root"};

  eraseAndThen([&] { fs::remove_all(world.path("root")); });

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(WhileErasing, AFileThatBecomesAFolderStaysWithWhatIsInIt) {
  fs::remove_all(world.path("root/plain"));
  world.file("root/other");

  eraseAndThen([&] {
    const std::string name = fs::exists(world.path("root/file")) ? "root/file" : "root/other";
    fs::remove(world.path(name));
    world.file(name + "/precious");
    world.keep(name);
    before = manifestOf(world.folder());
  });

  EXPECT_TRUE(restIsUntouched());
}

TEST_F(WhileErasing, AFolderThatGrowsByAFileForEachErasedOneKeepsTheNewOnes) {
  fs::remove_all(world.path("root/plain"));
  fs::remove(world.path("root/file"));
  for (const std::string name : {"1", "2", "3"}) world.file("root/folder/" + name);
  zooCase.mayStay = {"root/folder/new*"};
  before = manifestOf(world.folder());
  Meanwhile grow([&](int event) { world.file("root/folder/new" + std::to_string(event)); });

  erase(world.path("root"), grow);

  EXPECT_TRUE(restIsUntouched());
  EXPECT_TRUE(fs::exists(world.path("root/folder")));
}

}  // namespace
}  // namespace zelvane::test
