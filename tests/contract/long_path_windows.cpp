#include <string>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/windows/long_path.h"

namespace zelvane::test {
namespace {

using platform::longPath;
using platform::withoutClosingSeparators;

TEST(LongPath, APathOfADriveGetsTheFormForLongOnes) {
  EXPECT_EQ(longPath("C:\\folder\\file"), L"\\\\?\\C:\\folder\\file");
  EXPECT_EQ(longPath("c:/folder/file"), L"\\\\?\\c:\\folder\\file");
  EXPECT_EQ(longPath("C:\\" + std::string(5000, 'x')), L"\\\\?\\C:\\" + std::wstring(5000, L'x'));
}

TEST(LongPath, SeparatorsAreSingleAndOneClosingOneStays) {
  EXPECT_EQ(longPath("C:\\\\a//b"), L"\\\\?\\C:\\a\\b");
  EXPECT_EQ(longPath("C:\\a\\\\"), L"\\\\?\\C:\\a\\");
  EXPECT_EQ(longPath("C:\\"), L"\\\\?\\C:\\");
}

TEST(LongPath, NamesStayAsTheyAre) {
  EXPECT_EQ(longPath("C:\\dot.\\blank \\nul"), L"\\\\?\\C:\\dot.\\blank \\nul");
}

TEST(LongPath, DotsAreResolvedAndNeverLeaveTheDrive) {
  EXPECT_EQ(longPath("C:\\a\\.\\b"), L"\\\\?\\C:\\a\\b");
  EXPECT_EQ(longPath("C:\\a\\..\\b\\c\\.."), L"\\\\?\\C:\\b");
  EXPECT_EQ(longPath("C:\\..\\..\\a"), L"\\\\?\\C:\\a");
  EXPECT_EQ(longPath("C:\\a\\.."), L"\\\\?\\C:\\");
}

TEST(LongPath, AShareHasAFormOfItsOwn) {
  EXPECT_EQ(longPath("\\\\server\\share\\a\\..\\b"), L"\\\\?\\UNC\\server\\share\\b");
  EXPECT_EQ(longPath("//server/share/../a"), L"\\\\?\\UNC\\server\\share\\a");
}

TEST(LongPath, WhatHasSuchAFormAlreadyStaysAsItIs) {
  EXPECT_EQ(longPath("\\\\?\\C:\\a\\..\\b"), L"\\\\?\\C:\\a\\..\\b");
  EXPECT_EQ(longPath("\\\\.\\NUL"), L"\\\\.\\NUL");
  EXPECT_EQ(longPath("//./NUL"), L"\\\\.\\NUL");
}

TEST(LongPath, WhatIsNotAbsoluteContinuesTheCurrentFolder) {
  const std::wstring here = longPath(".");

  EXPECT_TRUE(here.starts_with(L"\\\\?\\")) << here.size();
  EXPECT_EQ(longPath("name"), here + (here.ends_with(L'\\') ? L"" : L"\\") + L"name");
  EXPECT_EQ(longPath("\\name"), here.substr(0, 7) + L"name");
}

TEST(LongPath, AnEmptyPathStaysEmptyAndAZeroByteIsRefused) {
  EXPECT_EQ(longPath(""), L"");
  EXPECT_THROW(longPath(std::string("C:\\a\0b", 6)), platform::Error);
}

TEST(LongPath, ClosingSeparatorsGoUnlessTheyMakeTheDrivesFirstFolder) {
  EXPECT_EQ(withoutClosingSeparators("C:\\a\\/\\"), "C:\\a");
  EXPECT_EQ(withoutClosingSeparators("C:\\\\"), "C:\\");
  EXPECT_EQ(withoutClosingSeparators("C:\\a"), "C:\\a");
  EXPECT_EQ(withoutClosingSeparators("/"), "/");
}

}  // namespace
}  // namespace zelvane::test
