#include "tests/architecture/source_tree.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/throw_away_folder.h"

namespace zelvane::architecture {

namespace {

class SourceTreeTest : public testing::Test {
 protected:
  std::vector<std::string> paths() const {
    std::vector<std::string> found;
    for (const SourceFile& file : readTree(folder.path())) {
      found.push_back(file.path);
    }
    return found;
  }

  test::ThrowAwayFolder folder;
};

}  // namespace

TEST_F(SourceTreeTest, HasEveryTextFileWithItsPathFromTheRoot) {
  folder.write("core/deep/a.h", "text");
  folder.write("README.md", "more");

  const std::vector<SourceFile> tree = readTree(folder.path());

  ASSERT_EQ(tree.size(), 2U);
  EXPECT_EQ(tree[0].path, "README.md");
  EXPECT_EQ(tree[1].path, "core/deep/a.h");
  EXPECT_EQ(tree[1].text, "text");
}

TEST_F(SourceTreeTest, LeavesOutWhatIsMadeAndWhatIsHidden) {
  folder.write("build/dev/a.cpp");
  folder.write(".git/config");
  folder.write("demo/__pycache__/a.pyc");

  EXPECT_EQ(paths(), std::vector<std::string>());
}

TEST_F(SourceTreeTest, KeepsTheFolderOfTheIntegrationServer) {
  folder.write(".ci/run");

  EXPECT_EQ(paths(), std::vector<std::string>{".ci/run"});
}

TEST_F(SourceTreeTest, KeepsAFolderNamedBuildThatIsNotAtTheRoot) {
  folder.write("docs/build/a.md");

  EXPECT_EQ(paths(), std::vector<std::string>{"docs/build/a.md"});
}

TEST_F(SourceTreeTest, LeavesOutWhatIsNoText) {
  folder.write("icon.png", std::string("a\0b", 3));

  EXPECT_EQ(paths(), std::vector<std::string>());
}

TEST_F(SourceTreeTest, LeavesOutLinks) {
  folder.write("core/a.h");
  std::filesystem::create_symlink(folder.path() / "core", folder.path() / "linked");

  EXPECT_EQ(paths(), std::vector<std::string>{"core/a.h"});
}

TEST(Violations, AreListedOneALine) {
  EXPECT_EQ(list({{"a.h", 3, "is long"}, {"b.h", 0, "is empty"}}),
            "a.h:3: is long\nb.h:0: is empty\n");
}

}  // namespace zelvane::architecture
