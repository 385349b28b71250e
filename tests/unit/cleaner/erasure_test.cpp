#include "cleaner/erasure.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/memory/memory_event_pump.h"
#include "platform/memory/memory_folder_tree.h"

namespace zelvane::cleaner {
namespace {

class ErasureTest : public testing::Test {
 protected:
  void erase(const std::string& path = "/root") { eraseContents(tree, pump, path); }

  const std::vector<std::string>& deleted() const { return files.deleted(); }

  platform::MemoryFileSystem files;
  platform::MemoryFolderTree tree{files};
  platform::MemoryEventPump pump;
};

TEST_F(ErasureTest, AnEmptyFolderStays) {
  files.addFolder("/root");

  erase();

  EXPECT_TRUE(deleted().empty());
  EXPECT_TRUE(files.has("/root"));
}

TEST_F(ErasureTest, ATreeOfThreeLevelsGoesAndTheRootStays) {
  files.addFile("/root/a/b/deepest");
  files.addFile("/root/a/deeper");
  files.addFile("/root/deep");

  erase();

  EXPECT_FALSE(files.has("/root/a"));
  EXPECT_FALSE(files.has("/root/deep"));
  EXPECT_TRUE(files.has("/root"));
}

TEST_F(ErasureTest, SubfoldersGoFirstThenFilesThenTheFolder) {
  files.addFile("/root/file");
  files.addFile("/root/b/file");
  files.addFile("/root/a/x/file");
  files.addFile("/root/a/file");

  erase();

  EXPECT_EQ(deleted(),
            (std::vector<std::string>{"/root/b/file", "/root/b", "/root/a/x/file", "/root/a/x",
                                      "/root/a/file", "/root/a", "/root/file"}));
}

TEST_F(ErasureTest, AHiddenFileStaysAndItsFolderWithIt) {
  files.addFile("/root/a/shown");
  files.addFile("/root/a/secret", "content", {.hidden = true});
  files.addFile("/root/b/shown");

  erase();

  EXPECT_TRUE(files.has("/root/a/secret"));
  EXPECT_FALSE(files.has("/root/a/shown"));
  EXPECT_FALSE(files.has("/root/b"));
}

TEST_F(ErasureTest, AHiddenFolderIsEnteredLikeOthers) {
  files.addFolder("/root/hidden", {.hidden = true});
  files.addFile("/root/hidden/file");

  erase();

  EXPECT_FALSE(files.has("/root/hidden"));
}

TEST_F(ErasureTest, AReadOnlyFileGoesAndAFileInUseStaysWithItsFolder) {
  files.addFile("/root/a/locked", "content", {.readOnly = true});
  files.addFile("/root/b/open", "content", {.inUse = true});
  files.addFile("/root/b/free");

  erase();

  EXPECT_FALSE(files.has("/root/a"));
  EXPECT_TRUE(files.has("/root/b/open"));
  EXPECT_FALSE(files.has("/root/b/free"));
}

TEST_F(ErasureTest, ALinkGoesAndWhatItLeadsToStays) {
  files.addFile("/home/letter");
  files.addLink("/root/to file", "/home/letter");
  files.addLink("/root/to folder", "/home");

  erase();

  EXPECT_FALSE(files.has("/root/to file"));
  EXPECT_FALSE(files.has("/root/to folder"));
  EXPECT_TRUE(files.has("/home/letter"));
}

TEST_F(ErasureTest, ARootThatIsALinkIsNotEntered) {
  files.addFile("/home/letter");
  files.addLink("/root", "/home");

  EXPECT_THROW(erase(), platform::Error);
  EXPECT_THROW(erase("/root/"), platform::Error);

  EXPECT_TRUE(deleted().empty());
}

TEST_F(ErasureTest, AFolderThatCannotBeListedEndsThatFolderAlone) {
  files.addFile("/root/a/file");
  files.addFolder("/root/b", {.unlistable = true});
  files.addFile("/root/b/file");
  files.addFolder("/root/c", {.unreadable = true});
  files.addFile("/root/d/file");

  erase();

  EXPECT_EQ(deleted(),
            (std::vector<std::string>{"/root/a/file", "/root/a", "/root/d/file", "/root/d"}));
  EXPECT_TRUE(files.has("/root/b/file"));
  EXPECT_TRUE(files.has("/root/c"));
}

TEST_F(ErasureTest, AVolumeMountedBelowIsNotEntered) {
  files.addFolder("/root/stick", {.mountPoint = true});
  files.addFile("/root/stick/file");
  files.addFile("/root/file");

  erase();

  EXPECT_EQ(deleted(), std::vector<std::string>{"/root/file"});
}

TEST_F(ErasureTest, AFolderOfSomebodyElseKeepsItsFiles) {
  files.addFolder("/root/theirs", {.foreign = true});
  files.addFile("/root/theirs/file");
  files.addFile("/root/file");

  erase();

  EXPECT_EQ(deleted(), std::vector<std::string>{"/root/file"});
}

TEST_F(ErasureTest, EventsRunAfterEachFile) {
  files.addFile("/root/a/one");
  files.addFile("/root/two", "content", {.inUse = true});
  files.addFile("/root/three");

  erase();

  EXPECT_EQ(pump.calls(), 3);
}

TEST_F(ErasureTest, AFolderMayVanishWhileItIsErased) {
  files.addFile("/root/a/one");
  files.addFile("/root/a/two");
  files.addFile("/root/b/three");
  pump.post([this] { files.vanish("/root/a"); });

  erase();

  EXPECT_FALSE(files.has("/root/a"));
  EXPECT_FALSE(files.has("/root/b"));
}

TEST_F(ErasureTest, AnErasureMayStartInsideAnErasureOfTheSameFolder) {
  files.addFile("/root/a/one");
  files.addFile("/root/a/two");
  files.addFile("/root/b/three");
  pump.post([this] { erase(); });

  erase();

  EXPECT_FALSE(files.has("/root/a"));
  EXPECT_FALSE(files.has("/root/b"));
  EXPECT_TRUE(files.has("/root"));
}

TEST_F(ErasureTest, ATreeOfTwoThousandLevelsGoes) {
  std::string path = "/root";
  for (int level = 0; level < 2000; ++level) {
    path += "/d";
  }
  files.addFile(path + "/deepest");

  erase();

  EXPECT_EQ(deleted().size(), 2001U);
  EXPECT_TRUE(files.has("/root"));
}

TEST_F(ErasureTest, ANameOutsideAnyCodePageGoesAsTheListingGaveIt) {
  files.addFile("/root/\xff\xfe no text");
  files.addFile("/root/-rf\n");

  erase();

  EXPECT_EQ(deleted(), (std::vector<std::string>{"/root/\xff\xfe no text", "/root/-rf\n"}));
}

}  // namespace
}  // namespace zelvane::cleaner
