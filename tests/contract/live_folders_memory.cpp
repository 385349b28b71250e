#include "platform/error.h"
#include "platform/memory/memory_special_folders.h"
#include "tests/contract/folder_tree_bed_memory.h"
#include "tests/contract/live_folders_contract.h"
#include "tests/support/listing.h"

namespace zelvane::test {
namespace {

using platform::Error;
using platform::ErrorNumber;
using platform::LiveFinding;
using platform::LiveFolder;
using platform::LiveFolders;
using platform::LiveSource;
using platform::LiveStore;
using platform::MemorySpecialFolders;
using platform::SpecialFolder;
using Names = std::vector<std::string>;

// What a program remembers, and whether it runs.
struct Memory {
  int entries = 0;
  bool inUse = false;
};

class MemoryStore : public LiveStore {
 public:
  explicit MemoryStore(Memory& memory) : memory_(memory) {}
  bool holdsAnything() const override { return memory_.entries > 0; }
  void erase() override {
    if (memory_.inUse) throw Error(ErrorNumber::permissionDenied);
    memory_.entries = 0;
  }

 private:
  Memory& memory_;
};

constexpr const char* kStorePlace = "/home/user/.history";
constexpr const char* kFolderPlace = "/home/user/Recent";

class MemorySource : public LiveSource {
 public:
  void find(SpecialFolder folder, LiveFinding& finding) const override {
    if (folder != SpecialFolder::recent) return;
    if (hasStore) {
      finding.places.push_back(kStorePlace);
      finding.folder.addStore("visits", std::make_unique<MemoryStore>(memory));
    }
    if (hasFolder) {
      finding.places.push_back(kFolderPlace);
      finding.folder.addRealFolder("Recent", kFolderPlace);
    }
    if (hasProfile) {
      finding.places.push_back("/home/user/.profile");
      LiveFolder& profile = finding.folder.addSubfolder(profileName);
      profile.addStore("visits", std::make_unique<MemoryStore>(memory));
      profile.addRealFolder("cache", kFolderPlace);
    }
  }

  bool hasStore = false;
  bool hasFolder = false;
  bool hasProfile = false;
  std::string profileName = "Default";
  mutable Memory memory;
};

class MemoryLiveFoldersBed : public LiveFoldersBed {
 public:
  LiveFolders& live() override { return live_; }
  SpecialFolder special() const override { return SpecialFolder::recent; }
  std::string addStore() override {
    source.hasStore = true;
    source.memory.entries = 3;
    return kStorePlace;
  }
  std::string addRealFolder() override {
    source.hasFolder = true;
    tree.fileSystem.addFile(std::string(kFolderPlace) + "/file");
    return kFolderPlace;
  }
  void holdStore() override { source.memory.inUse = true; }
  bool storeHoldsAnything() const override { return source.memory.entries > 0; }
  bool realFolderHas(const std::string& name) const override {
    return tree.fileSystem.has(std::string(kFolderPlace) + "/" + name);
  }
  std::string addOtherFolder() override {
    tree.fileSystem.addFile("/other/other");
    return "/other";
  }

  MemoryFolderTreeBed tree;
  MemorySpecialFolders folders{tree.fileSystem};
  MemorySource source;
  MemorySource second;

 private:
  LiveFolders live_{folders, tree.tree(), {source, second}};
};

INSTANTIATE_TEST_SUITE_P(Memory, LiveFoldersContract,
                         testing::Values([]() -> std::unique_ptr<LiveFoldersBed> {
                           return std::make_unique<MemoryLiveFoldersBed>();
                         }));

// As a folder tree they keep that contract, too, for all that is not theirs.
class LiveOverMemoryBed : public MemoryFolderTreeBed {
 public:
  platform::FolderTree& tree() override { return live_; }

 private:
  MemorySpecialFolders folders_{fileSystem};
  LiveFolders live_{folders_, MemoryFolderTreeBed::tree(), {}};
};

INSTANTIATE_TEST_SUITE_P(LiveOverMemory, FolderTreeContract,
                         testing::Values([]() -> std::unique_ptr<FolderTreeBed> {
                           return std::make_unique<LiveOverMemoryBed>();
                         }));

class LiveFoldersTest : public testing::Test {
 protected:
  std::unique_ptr<platform::OpenFolder> openRoot() {
    return bed.live().openRoot(bed.live().path(SpecialFolder::recent).value());
  }

  MemoryLiveFoldersBed bed;
};

TEST_F(LiveFoldersTest, AProfileIsASubfolderOfStoresAndRealFolders) {
  bed.source.hasProfile = true;
  bed.source.memory.entries = 1;
  bed.tree.fileSystem.addFile("/home/user/Recent/file");

  const auto root = openRoot();
  const auto profile = root->openSubfolder("Default");

  EXPECT_EQ(listOf(*root).subfolders, Names{"Default"});
  EXPECT_EQ(listOf(*profile).files, Names{"visits"});
  EXPECT_EQ(listOf(*profile).subfolders, Names{"cache"});
}

TEST_F(LiveFoldersTest, AProfileSurvivesItsOwnRemovalSilently) {
  bed.source.hasProfile = true;
  bed.source.memory.entries = 1;
  bed.tree.fileSystem.addFile("/home/user/Recent/file");

  const auto root = openRoot();
  eraseBelow(*root);

  EXPECT_NO_THROW(root->removeFolder("Default"));
  EXPECT_EQ(listOf(*root).subfolders, Names{"Default"});
  EXPECT_EQ(bed.source.memory.entries, 0);
  EXPECT_FALSE(bed.tree.fileSystem.has("/home/user/Recent/file"));
}

TEST_F(LiveFoldersTest, NamesThatTwoSourcesUseAreToldApart) {
  bed.source.hasStore = bed.second.hasStore = true;
  bed.source.memory.entries = bed.second.memory.entries = 1;

  const auto root = openRoot();
  ASSERT_EQ(listOf(*root).files, (Names{"visits", "visits (2)"}));
  root->removeFile("visits (2)");

  EXPECT_EQ(bed.source.memory.entries, 1);
  EXPECT_EQ(bed.second.memory.entries, 0);
}

TEST_F(LiveFoldersTest, AProfilesNameBecomesASingleName) {
  bed.source.hasProfile = bed.second.hasProfile = true;
  bed.source.profileName = "a/b\\c";
  bed.second.profileName = "..";

  EXPECT_EQ(listOf(*openRoot()).subfolders, (Names{"a_b_c", ".._"}));
}

TEST_F(LiveFoldersTest, TheDesktopsOwnFolderComesFirst) {
  bed.tree.fileSystem.addFile("/home/user/own/file");
  bed.folders.set(SpecialFolder::recent, "/home/user/own");
  bed.addRealFolder();

  EXPECT_EQ(bed.live().path(SpecialFolder::recent), "/home/user/own, /home/user/Recent");
  EXPECT_EQ(listOf(*openRoot()).subfolders, (Names{"own", "Recent"}));
}

TEST_F(LiveFoldersTest, AFolderToWhichNothingIsContributedIsTheDesktopsOwn) {
  bed.tree.fileSystem.addFile("/home/user/own/file");
  bed.folders.set(SpecialFolder::recent, "/home/user/own");
  bed.folders.set(SpecialFolder::cookies, "/home/user/own");
  bed.folders.setTemporary("/home/user/own");

  EXPECT_EQ(bed.live().path(SpecialFolder::recent), "/home/user/own");
  EXPECT_EQ(bed.live().path(SpecialFolder::cookies), "/home/user/own");
  EXPECT_EQ(bed.live().temporaryPath(), "/home/user/own/");
  EXPECT_EQ(listOf(*openRoot()).files, Names{"file"});
}

// Contributes a store in each of many places.
class ManyPlaces : public LiveSource {
 public:
  explicit ManyPlaces(std::vector<std::string> places) : places_(std::move(places)) {}

  void find(SpecialFolder folder, LiveFinding& finding) const override {
    if (folder != SpecialFolder::recent) return;
    for (const std::string& place : places_) {
      finding.places.push_back(place);
      finding.folder.addStore("visits", std::make_unique<MemoryStore>(memory_));
    }
  }

 private:
  std::vector<std::string> places_;
  mutable Memory memory_{.entries = 1};
};

TEST_F(LiveFoldersTest, MorePlacesThanAPathHasRoomForAreCountedAndAllErased) {
  const ManyPlaces many(std::vector<std::string>(40, "/home/user/" + std::string(40, 'x')));
  LiveFolders live(bed.folders, bed.tree.tree(), {many});

  const std::string path = live.path(SpecialFolder::recent).value();

  EXPECT_LE(path.size(), 254U);
  EXPECT_TRUE(path.ends_with("x and 36 more")) << path;
  EXPECT_EQ(listOf(*live.openRoot(path)).files.size(), 40U);
}

TEST_F(LiveFoldersTest, APlaceThatIsTooLongByItselfIsCounted) {
  const ManyPlaces deep({"/" + std::string(300, 'x'), "/short"});
  LiveFolders live(bed.folders, bed.tree.tree(), {deep});

  EXPECT_EQ(live.path(SpecialFolder::recent), "2 places");
  EXPECT_EQ(listOf(*live.openRoot("2 places")).files.size(), 2U);
}

TEST_F(LiveFoldersTest, AFolderWhoseSourcesAreGoneCannotBeOpened) {
  bed.addStore();
  const std::string path = bed.live().path(SpecialFolder::recent).value();

  bed.source.hasStore = false;

  EXPECT_THROW(bed.live().openRoot(path), Error);
}

}  // namespace
}  // namespace zelvane::test
