#include "tests/architecture/source_text.h"

#include <gtest/gtest.h>

namespace zelvane::architecture {

TEST(SourceText, LinesAreCountedWithAndWithoutALastEnd) {
  EXPECT_EQ(linesOf("").size(), 0U);
  EXPECT_EQ(linesOf("a\nb\n").size(), 2U);
  EXPECT_EQ(linesOf("a\nb").size(), 2U);
}

TEST(SourceText, CommentsBecomeBlanksAndLinesStay) {
  EXPECT_EQ(withoutComments("a // b\nc"), "a     \nc");
  EXPECT_EQ(withoutComments("a /* b\n */ c"), "a     \n    c");
  EXPECT_EQ(withoutComments("a /* never closed"), "a                ");
}

TEST(SourceText, WhatLooksLikeACommentInALiteralStays) {
  EXPECT_EQ(withoutComments("f(\"http://a\"); // b"), "f(\"http://a\");     ");
  EXPECT_EQ(withoutComments("f(\"\\\"//\");"), "f(\"\\\"//\");");
  EXPECT_EQ(withoutComments("f('\"'); // b"), "f('\"');     ");
  EXPECT_EQ(withoutComments("f(R\"x(\")//)x\"); // b"), "f(R\"x(\")//)x\");     ");
}

TEST(SourceText, AMarkBetweenDigitsOpensNoLiteral) {
  EXPECT_EQ(withoutComments("1'000; // b"), "1'000;     ");
}

TEST(SourceText, CodeAloneHasNoWordsOfLiterals) {
  EXPECT_EQ(codeOnly("f(\"word\"); // b"), "f(\"    \");     ");
}

TEST(SourceText, IncludesAreFoundWithTheirLines) {
  const auto includes =
      includesOf("#include <string>\n\n  # include \"core/identity.h\"  // why\n");

  ASSERT_EQ(includes.size(), 2U);
  EXPECT_EQ(includes[0], (Include{1, "string", false}));
  EXPECT_EQ(includes[1], (Include{3, "core/identity.h", true}));
}

TEST(SourceText, IncludesInCommentsAreNone) {
  EXPECT_TRUE(includesOf("// #include <string>\n/*\n#include <vector>\n*/\n").empty());
}

TEST(SourceText, WordsAreFoundWhole) {
  EXPECT_EQ(findWord("one two", "two"), 4U);
  EXPECT_EQ(findWord("twofold, two", "two"), 9U);
  EXPECT_EQ(findWord("two_fold", "two"), std::string_view::npos);
}

TEST(SourceText, BelowAFolderMeansWithinIt) {
  EXPECT_TRUE(isBelow("ui/qt/mirror.h", "ui"));
  EXPECT_TRUE(isBelow("ui/qt/mirror.h", "ui/qt"));
  EXPECT_FALSE(isBelow("ui/qt", "ui/qt"));
  EXPECT_FALSE(isBelow("uix/a.h", "ui"));
}

TEST(SourceText, ProductIsTheCppOfTheProgramsFolders) {
  EXPECT_TRUE(isProduct("platform/linux/linux_files.cpp"));
  EXPECT_FALSE(isProduct("cleaner/README.md"));
  EXPECT_FALSE(isProduct("tests/unit/cleaner/options_test.cpp"));
}

}  // namespace zelvane::architecture
