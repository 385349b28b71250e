// Every rule, applied to the project itself.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/architecture/control_names.h"
#include "tests/architecture/file_rules.h"
#include "tests/architecture/include_arrows.h"
#include "tests/architecture/source_text.h"
#include "tests/architecture/source_tree.h"
#include "tests/architecture/wording.h"

namespace zelvane::architecture {

namespace {

// Where ./check runs the tests as another user, that user sees a copy of the sources.
std::string sourceFolder() {
  const char* copy = std::getenv("ZELVANE_SOURCE_DIR");
  return copy != nullptr ? copy : ZELVANE_SOURCE_DIR;
}

testing::AssertionResult none(const std::vector<Violation>& violations) {
  return violations.empty() ? testing::AssertionSuccess()
                            : testing::AssertionFailure() << "\n"
                                                          << list(violations);
}

class TreeTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { tree = readTree(sourceFolder()); }

  template <typename Rule>
  static std::vector<Violation> violationsOf(Rule rule) {
    std::vector<Violation> all;
    for (const SourceFile& file : tree) {
      const std::vector<Violation> some = rule(file);
      all.insert(all.end(), some.begin(), some.end());
    }
    return all;
  }

  static bool holds(const std::string& path) {
    return std::ranges::find(tree, path, &SourceFile::path) != tree.end();
  }

  static inline std::vector<SourceFile> tree;
};

}  // namespace

TEST_F(TreeTest, IsReadFromTopToBottom) {
  EXPECT_TRUE(holds("CMakeLists.txt"));
  EXPECT_TRUE(holds("check"));
  EXPECT_TRUE(holds(".ci/run"));
  EXPECT_TRUE(holds("platform/port.h"));
  EXPECT_TRUE(holds("core/controls/control.h"));
  EXPECT_TRUE(holds("tests/architecture/tree_test.cpp"));
}

TEST_F(TreeTest, IncludesFollowTheArrows) { EXPECT_TRUE(none(violationsOf(forbiddenIncludes))); }

TEST_F(TreeTest, EveryFolderOfTheProgramHasItsArrows) {
  EXPECT_TRUE(none(foldersWithoutARule(tree)));
}

TEST_F(TreeTest, NoFileIsTooLong) { EXPECT_TRUE(none(violationsOf(tooLong))); }

TEST_F(TreeTest, EveryHeaderSaysWhatItIs) { EXPECT_TRUE(none(violationsOf(headerOpening))); }

TEST_F(TreeTest, OnlyTenantsAndShellsCompileConditionally) {
  EXPECT_TRUE(none(violationsOf(conditionalCompilation)));
}

TEST_F(TreeTest, ProductCodeUsesNoStreamsNoRegexNoSharedPointers) {
  EXPECT_TRUE(none(violationsOf(unusedLanguage)));
}

TEST_F(TreeTest, EveryFolderOfTheProgramHasAReadme) { EXPECT_TRUE(none(missingReadmes(tree))); }

TEST_F(TreeTest, NoFileSaysWhatDoesNotBelongIntoTheTree) {
  EXPECT_TRUE(none(violationsOf(forbiddenWords)));
}

TEST_F(TreeTest, EveryControlNameIsSpeltOnce) { EXPECT_TRUE(none(controlNamesSpeltAgain(tree))); }

}  // namespace zelvane::architecture
