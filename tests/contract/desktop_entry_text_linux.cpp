#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/linux/desktop_entry_text.h"

namespace zelvane::test {
namespace {

using platform::entryValue;
using platform::execValue;

TEST(DesktopEntryText, APathIsInQuotes) {
  EXPECT_EQ(execValue("/opt/zelvane/zelvane"), R"("/opt/zelvane/zelvane")");
  EXPECT_EQ(execValue("/opt/my programs/zelvane"), R"("/opt/my programs/zelvane")");
}

TEST(DesktopEntryText, WhatMeansSomethingInQuotesIsProtectedAndThatOnceMore) {
  EXPECT_EQ(execValue(R"(/a"b)"), R"("/a\\"b")");
  EXPECT_EQ(execValue(R"(/a`b)"), R"("/a\\`b")");
  EXPECT_EQ(execValue(R"(/a$b)"), R"("/a\\$b")");
  EXPECT_EQ(execValue(R"(/a\b)"), R"("/a\\\\b")");
}

// Desktops look for the program that stands first before they have made one sign of two.
TEST(DesktopEntryText, APercentSignIsNoFieldCodeAndDoesNotStandFirst) {
  EXPECT_EQ(execValue("/100%u"), R"("/bin/sh" -c "exec \\"\\$0\\"" "/100%%u")");
}

TEST(DesktopEntryText, ALineBreakInAPathStartsNoLineOfItsOwn) {
  EXPECT_EQ(execValue("/a\nExec b\tc\rd"), R"("/a\nExec b\tc\rd")");
}

// It would be taken for the setting of a variable.
TEST(DesktopEntryText, APathWithAnEqualsSignDoesNotStandFirst) {
  EXPECT_EQ(execValue("/a=b"), R"("/bin/sh" -c "exec \\"\\$0\\"" "/a=b")");
}

TEST(DesktopEntryText, BlanksAtTheBeginningOfAValueCount) {
  EXPECT_EQ(entryValue("  a b "), R"(\s\sa b )");
  EXPECT_EQ(entryValue("sails"), "sails");
  EXPECT_EQ(entryValue("s s"), "s s");
}

TEST(DesktopEntryText, WhatTheFormatCannotHoldIsRefused) {
  for (const char* path : {"/\xE9t\xE9", "/\x01", "/\x7F"}) {
    EXPECT_THROW(execValue(path), platform::Error) << path;
    EXPECT_THROW(entryValue(path), platform::Error) << path;
  }
  EXPECT_EQ(entryValue("/\xC3\xA9t\xC3\xA9"), "/\xC3\xA9t\xC3\xA9");
}

}  // namespace
}  // namespace zelvane::test
