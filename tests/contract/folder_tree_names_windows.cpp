// Names of every kind, and very many of them.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/windows/wide_text.h"
#include "tests/contract/folder_tree_bed_windows.h"
#include "tests/support/listing.h"
#include "tests/support/windows/wine.h"

namespace zelvane::test {
namespace {

using Names = std::vector<std::string>;

class WindowsFolderTreeNames : public testing::Test {
 protected:
  std::unique_ptr<platform::OpenFolder> openRoot() { return bed.tree().openRoot(bed.root()); }

  Names files() {
    Names names = listOf(*openRoot()).files;
    std::ranges::sort(names);
    return names;
  }

  // By a shell of the Unix below Wine, which knows no forbidden name; `script` is in the root.
  void runInRoot(const std::string& script) const {
    runUnixTool("sh", {"-c", "cd $1 && " + script, "sh", unixPath(bed.root())});
  }

  // By Wine it takes as many looks for each as there are already.
  void addFiles(int count) {
    if (runsUnderWine()) {
      runInRoot("for i in $(seq " + std::to_string(count) + "); do : >file$i; done");
      return;
    }
    for (int number = 1; number <= count; ++number) bed.addFile("file" + std::to_string(number));
  }

  WindowsFolderTreeBed bed;
};

TEST_F(WindowsFolderTreeNames, OfAllAlphabetsAreErased) {
  const Names names = {"Ελληνικά", "Русский", "עברית", "العربية",  "中文",    "日本語",
                       "한국어",   "ไทย",     "हिन्दी", "🧹🪟", "ǅ ß ı İ", "a\u0301 \u00E1"};
  for (const std::string& name : names) {
    bed.addFile(name);
    bed.addFile("folder " + name + "/" + name);
  }
  ASSERT_EQ(files().size(), names.size());

  eraseBelow(*openRoot());

  EXPECT_EQ(files(), Names());
  EXPECT_EQ(listOf(*openRoot()).subfolders, Names());
}

// To the system these are two names: it composes no letters.
TEST_F(WindowsFolderTreeNames, ALetterInOnePieceIsNotTheSameInTwo) {
  bed.addFile("\u00E1");
  bed.addFile("a\u0301");

  openRoot()->removeFile("\u00E1");

  EXPECT_EQ(files(), Names{"a\u0301"});
}

// Names are any units of 16 bits to Windows. Wine refuses these.
TEST_F(WindowsFolderTreeNames, HalvesOfSurrogatePairsAloneAreErased) {
  if (runsUnderWine()) GTEST_SKIP() << "Wine has no such names";
  for (const wchar_t* name : {L"\xD83E", L"\xDDF9", L"x\xDDF9\xD83Ey"}) {
    bed.addFile(platform::plainText(name));
  }
  ASSERT_EQ(files().size(), 3U);

  eraseBelow(*openRoot());

  EXPECT_EQ(files(), Names());
}

TEST_F(WindowsFolderTreeNames, FiveThousandInAFolderAreErased) {
  addFiles(5'000);
  ASSERT_EQ(files().size(), 5'000U);

  eraseBelow(*openRoot());

  EXPECT_EQ(files(), Names());
}

TEST_F(WindowsFolderTreeNames, UnderWineThoseThatDifferInCaseAloneAreTwo) {
  if (!runsUnderWine()) GTEST_SKIP() << "a folder of Windows has one of them";
  runInRoot("touch name NAME");

  openRoot()->removeFile("NAME");

  EXPECT_EQ(files(), Names{"name"});
}

TEST_F(WindowsFolderTreeNames, UnderWineThoseThatWindowsForbidsStayAndHarmNoOther) {
  if (!runsUnderWine()) GTEST_SKIP() << "there are no such names";
  const Names forbidden = {"*", "?", "a:b", "folder\\kept", "k*", "kept:stream"};
  bed.addFile("folder/file");
  bed.addHiddenFile("folder/kept");
  bed.addHiddenFile("kept");
  runInRoot(R"(mkdir '*.*' && touch '*' '?' 'a:b' 'folder\kept' 'k*' 'kept:stream')");

  eraseBelow(*openRoot());

  EXPECT_EQ(files(), forbidden);
  EXPECT_TRUE(bed.has("kept"));
  EXPECT_TRUE(bed.has("folder/kept"));
  EXPECT_FALSE(bed.has("folder/file"));
}

TEST_F(WindowsFolderTreeNames, UnderWineBytesThatAreNoTextAreErasedAndNothingElse) {
  if (!runsUnderWine()) GTEST_SKIP() << "there are no such names";
  bed.addHiddenFile("ab");
  bed.addHiddenFile("a_b");
  runInRoot(R"(touch $(printf 'a\377b') $(printf '\355\240\276') $(printf '\300\257'))");
  ASSERT_EQ(files().size(), 3U);

  eraseBelow(*openRoot());

  EXPECT_EQ(files(), Names());
  EXPECT_TRUE(bed.has("ab"));
  EXPECT_TRUE(bed.has("a_b"));
}

}  // namespace
}  // namespace zelvane::test
