#include "tests/architecture/file_rules.h"

#include <string>

#include <gtest/gtest.h>

namespace zelvane::architecture {

namespace {

std::string manyLines(int count) {
  std::string text;
  for (int line = 0; line < count; ++line) {
    text += "line\n";
  }
  return text;
}

constexpr auto kOpening = "// What every port has in common.\n#pragma once\n";

}  // namespace

TEST(FileLength, FourHundredLinesAreAllowedAndNotOneMore) {
  EXPECT_EQ(list(tooLong({"core/a.cpp", manyLines(400)})), "");
  EXPECT_EQ(list(tooLong({"core/a.cpp", manyLines(401)})),
            "core/a.cpp:401: longer than 400 lines\n");
}

TEST(FileLength, ALastLineWithoutAnEndCounts) {
  EXPECT_NE(list(tooLong({"core/a.cpp", manyLines(400) + "one more"})), "");
}

TEST(FileLength, HoldsForScriptsAndTestsToo) {
  EXPECT_NE(list(tooLong({"demo/run_demo.py", manyLines(401)})), "");
  EXPECT_NE(list(tooLong({"scripts/build.sh", manyLines(401)})), "");
  EXPECT_NE(list(tooLong({"check", "#!/bin/bash\n" + manyLines(400)})), "");
  EXPECT_NE(list(tooLong({"tests/unit/a_test.cpp", manyLines(401)})), "");
}

TEST(FileLength, ADocumentMayBeLonger) {
  EXPECT_EQ(list(tooLong({"docs/tour.md", manyLines(500)})), "");
}

TEST(HeaderOpening, ACommentAndPragmaOnceAreEnough) {
  EXPECT_EQ(list(headerOpening({"platform/port.h", kOpening})), "");
}

TEST(HeaderOpening, ACommentOfSeveralParagraphsIsFine) {
  EXPECT_EQ(list(headerOpening(
                {"platform/port.h",
                 "// What every port has in common.\n//\n// And more.\n\n#pragma once\n"})),
            "");
}

TEST(HeaderOpening, WithoutACommentIsRefused) {
  EXPECT_EQ(list(headerOpening({"platform/port.h", "#pragma once\n"})),
            "platform/port.h:1: no opening comment that says what this header is\n");
}

TEST(HeaderOpening, ACommentThatSaysNothingIsRefused) {
  EXPECT_NE(list(headerOpening({"platform/port.h", "// port.h\n#pragma once\n"})), "");
}

TEST(HeaderOpening, WithoutPragmaOnceIsRefused) {
  EXPECT_EQ(list(headerOpening(
                {"platform/port.h", "// What every port has in common.\n#include <string>\n"})),
            "platform/port.h:2: \"#pragma once\" is not the first line of code\n");
}

TEST(HeaderOpening, AnEmptyHeaderIsRefused) {
  EXPECT_NE(list(headerOpening({"platform/port.h", ""})), "");
}

TEST(HeaderOpening, OtherFilesOpenAsTheyLike) {
  EXPECT_EQ(list(headerOpening({"platform/error.cpp", "#include \"platform/error.h\"\n"})), "");
}

TEST(ConditionalCompilation, IsRefusedInPortsCoreAndSubsystems) {
  EXPECT_EQ(list(conditionalCompilation({"core/a.cpp", "\n#ifdef _WIN32\n#endif\n"})),
            "core/a.cpp:2: conditional compilation outside the tenants\n");
  EXPECT_NE(list(conditionalCompilation({"cleaner/a.h", "#if defined(__linux__)\n"})), "");
  EXPECT_NE(list(conditionalCompilation({"platform/port.h", "#ifndef PORT_H\n"})), "");
  EXPECT_NE(list(conditionalCompilation({"platform/memory/a.cpp", "  #  elif X\n"})), "");
}

TEST(ConditionalCompilation, IsAllowedInTenantsAndShells) {
  EXPECT_EQ(list(conditionalCompilation({"platform/linux/a.cpp", "#ifdef O_TMPFILE\n"})), "");
  EXPECT_EQ(list(conditionalCompilation({"ui/qt/a.cpp", "#if QT_VERSION\n"})), "");
}

TEST(ConditionalCompilation, IsNotSeenInCommentsAndLiterals) {
  EXPECT_EQ(list(conditionalCompilation({"core/a.cpp", "/*\n#if 0\n*/\n"})), "");
  EXPECT_EQ(list(conditionalCompilation({"core/a.cpp", "auto a = R\"(\n#if 0\n)\";\n"})), "");
}

TEST(UnusedLanguage, StreamsAndRegexAreRefusedInProductCode) {
  EXPECT_EQ(list(unusedLanguage({"core/a.cpp", "#include <iostream>\n"})),
            "core/a.cpp:1: product code does without iostream\n");
  EXPECT_NE(list(unusedLanguage({"platform/linux/a.cpp", "#include <fstream>\n"})), "");
  EXPECT_NE(list(unusedLanguage({"ui/qt/a.cpp", "#include <regex>\n"})), "");
}

TEST(UnusedLanguage, SharedPointersAreRefusedInProductCode) {
  EXPECT_EQ(list(unusedLanguage({"core/a.h", "\nstd::shared_ptr<int> a;\n"})),
            "core/a.h:2: product code does without shared_ptr\n");
  EXPECT_NE(list(unusedLanguage({"core/a.h", "auto a = std::make_shared<int>(1);\n"})), "");
}

TEST(UnusedLanguage, MayBeSpokenOf) {
  EXPECT_EQ(list(unusedLanguage({"core/a.h", "// A shared_ptr would hide who owns it.\n"})), "");
}

TEST(UnusedLanguage, IsFreeInTests) {
  EXPECT_EQ(list(unusedLanguage({"tests/support/a.cpp", "#include <fstream>\n"})), "");
}

TEST(Readmes, AFolderWithCodeAndNoReadmeIsReported) {
  EXPECT_EQ(list(missingReadmes({{"cleaner/a.cpp", ""}, {"README.md", ""}})),
            "cleaner:0: has no README.md\n");
}

TEST(Readmes, AFolderWithAReadmeIsNotReported) {
  EXPECT_EQ(list(missingReadmes({{"cleaner/README.md", ""}, {"cleaner/a.cpp", ""}})), "");
}

}  // namespace zelvane::architecture
