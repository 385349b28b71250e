#include "platform/name_list.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace zelvane::platform {
namespace {

using namespace std::string_view_literals;

std::vector<std::string> namesIn(const NameList& list) { return {list.begin(), list.end()}; }

TEST(NameListTest, ANewOneIsEmpty) {
  const NameList list;

  EXPECT_TRUE(list.empty());
  EXPECT_EQ(list.size(), 0U);
  EXPECT_EQ(list.begin(), list.end());
}

TEST(NameListTest, NamesComeInTheOrderInWhichTheyWereAdded) {
  NameList list;

  list.add("b");
  list.add("a name that is far longer than any string keeps inside itself");
  list.add("\xff\n*");

  EXPECT_EQ(namesIn(list),
            (std::vector<std::string>{
                "b", "a name that is far longer than any string keeps inside itself", "\xff\n*"}));
  EXPECT_EQ(list.size(), 3U);
}

TEST(NameListTest, AZeroByteStandsBehindEachName) {
  NameList list;

  list.add("ab"sv.substr(0, 1));
  list.add("c");

  EXPECT_STREQ((*list.begin()).data(), "a");
}

}  // namespace
}  // namespace zelvane::platform
