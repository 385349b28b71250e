#include "platform/shared/ascii_case.h"

#include <map>
#include <string>

#include <gtest/gtest.h>

namespace zelvane::test {
namespace {

using platform::NameLess;
using platform::sameName;

TEST(AsciiCase, LettersAreTheSameInBothCases) {
  EXPECT_TRUE(sameName("Start Page", "sTART pAGE"));
  EXPECT_TRUE(sameName("", ""));
  EXPECT_FALSE(sameName("a", "ab"));
}

TEST(AsciiCase, OtherCharactersAreNot) {
  EXPECT_FALSE(sameName("@", "`"));
  EXPECT_FALSE(sameName("[", "{"));
  EXPECT_FALSE(sameName("É", "é"));
}

TEST(AsciiCase, AMapFindsANameInAnyCase) {
  std::map<std::string, int, NameLess> map{{"Run", 1}, {"RunMRU", 2}};

  EXPECT_EQ(map.find("RUN")->second, 1);
  EXPECT_EQ(map.find("runmru")->second, 2);
  EXPECT_EQ(map.find("ru"), map.end());
}

}  // namespace
}  // namespace zelvane::test
