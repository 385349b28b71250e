#include "platform/shared/ini_text.h"

#include <gtest/gtest.h>

namespace zelvane::test {
namespace {

using platform::cutText;
using platform::IniText;

std::string afterSetting(std::string_view text, std::string_view section = "s",
                         std::string_view key = "key") {
  IniText ini(text);
  EXPECT_TRUE(ini.set(section, key, "new"));
  return ini.text();
}

TEST(IniText, PlainLineEndsStayPlain) {
  EXPECT_EQ(afterSetting("[s]\na=1\n\n[t]\n"), "[s]\na=1\nkey=new\n\n[t]\n");
  EXPECT_EQ(afterSetting("[s]\nkey=old\n"), "[s]\nkey=new\n");
}

TEST(IniText, EachLineKeepsItsOwnEnd) {
  EXPECT_EQ(afterSetting("[s]\r\nkey=old\na=1\r\n"), "[s]\r\nkey=new\na=1\r\n");
}

TEST(IniText, ALastLineWithoutAnEndKeepsItsText) {
  EXPECT_EQ(afterSetting("[s]\nkey=old"), "[s]\nkey=new");
  EXPECT_EQ(afterSetting("[s]\na=1"), "[s]\na=1\nkey=new\n");
  EXPECT_EQ(afterSetting("[t]"), "[t]\r\n[s]\r\nkey=new\r\n");
}

TEST(IniText, AByteOrderMarkIsKeptAndHidesNothing) {
  EXPECT_EQ(afterSetting("\xEF\xBB\xBF[s]\nkey=old\n"), "\xEF\xBB\xBF[s]\nkey=new\n");
}

TEST(IniText, TheKeyKeepsItsSpellingAndItsIndent) {
  EXPECT_EQ(afterSetting("[ S ]\n  KEY =old ; not a comment here\n"), "[ S ]\n  KEY =new\n");
}

TEST(IniText, AKeyIsFoundInALaterSectionOfTheSameName) {
  EXPECT_EQ(IniText("[s]\na=1\n[t]\n[s]\nkey=2\n").find("s", "key"), "2");
  EXPECT_EQ(afterSetting("[s]\na=1\n[t]\n[s]\nkey=2\n"), "[s]\na=1\n[t]\n[s]\nkey=new\n");
  EXPECT_EQ(afterSetting("[s]\na=1\n[t]\n[s]\nb=2\n"), "[s]\na=1\nkey=new\n[t]\n[s]\nb=2\n");
}

TEST(IniText, ANewKeyOfAnEmptySectionStandsBelowItsName) {
  EXPECT_EQ(afterSetting("[s]\n\n\n[t]\n"), "[s]\nkey=new\n\n\n[t]\n");
}

TEST(IniText, AnEntryThatCouldNotBeReadAgainIsRefused) {
  IniText ini("[s]\nkey=old\n");

  EXPECT_FALSE(ini.set("s", "", "new"));
  EXPECT_FALSE(ini.set("s", "a=b", "new"));
  EXPECT_FALSE(ini.set("s", ";key", "new"));
  EXPECT_FALSE(ini.set("s", "[key]", "new"));
  EXPECT_FALSE(ini.set("a]b", "key", "new"));
  EXPECT_FALSE(ini.set("s", "key", std::string_view("zero\0", 5)));
  EXPECT_EQ(ini.text(), "[s]\nkey=old\n");
}

TEST(IniText, BytesOfAnyKindAreKept) {
  const std::string noise("\x01\xFF\xFE[\n=\n]\n==\n[\0]\n;\n[x", 20);

  EXPECT_EQ(IniText(noise).text(), noise);
  EXPECT_EQ(IniText("").text(), "");
}

TEST(CutText, KeepsWholeCharactersOnly) {
  EXPECT_EQ(cutText("abc", 3), "abc");
  EXPECT_EQ(cutText("abc", 2), "ab");
  EXPECT_EQ(cutText("é", 1), "");
  EXPECT_EQ(cutText("a東b", 4), "a東");
  EXPECT_EQ(cutText("a東b", 3), "a");
}

}  // namespace
}  // namespace zelvane::test
