#include "platform/shared/jump_list.h"

#include <gtest/gtest.h>

#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::Pins;
using platform::pinsIn;

const std::vector<JumpListEntry> kUsed{{"C:\\private.txt"}, {"C:\\other.txt"}};

std::string fileWith(const std::string& list) { return compoundFile({{"DestList", list}}); }

class JumpListOfVersion : public testing::TestWithParam<std::uint32_t> {};
INSTANTIATE_TEST_SUITE_P(Known, JumpListOfVersion, testing::Values(1, 3, 4));

TEST_P(JumpListOfVersion, HasNoPinsWhereNothingIsPinned) {
  EXPECT_EQ(pinsIn(jumpList(GetParam(), kUsed)), Pins::none);
  EXPECT_EQ(pinsIn(jumpList(GetParam(), {})), Pins::none);
}

TEST_P(JumpListOfVersion, HasPinsWhereOneEntryIsPinned) {
  EXPECT_EQ(pinsIn(jumpList(GetParam(), {{"C:\\used"}, {"C:\\pinned", 0}})), Pins::some);
}

TEST_P(JumpListOfVersion, HasPinsWhereTheHeaderAloneSaysSo) {
  std::string list = destList(GetParam(), kUsed);
  putNumber(list, 8, 1);

  EXPECT_EQ(pinsIn(fileWith(list)), Pins::some);
}

TEST_P(JumpListOfVersion, HasPinsWhereAnEntryAloneSaysSo) {
  std::string list = destList(GetParam(), {{"C:\\used"}, {"C:\\pinned", 3}});
  putNumber(list, 8, 0);

  EXPECT_EQ(pinsIn(fileWith(list)), Pins::some);
}

TEST_P(JumpListOfVersion, OfManyEntriesIsReadToTheLast) {
  std::vector<JumpListEntry> entries(100, {"C:\\a document with a long name.txt"});
  EXPECT_EQ(pinsIn(jumpList(GetParam(), entries)), Pins::none);

  entries.back().pin = 0;

  EXPECT_EQ(pinsIn(jumpList(GetParam(), entries)), Pins::some);
}

TEST_P(JumpListOfVersion, CutAnywhereIsUnknown) {
  const std::string list = destList(GetParam(), kUsed);
  for (std::size_t length = 0; length < list.size(); ++length) {
    EXPECT_EQ(pinsIn(fileWith(list.substr(0, length))), Pins::unknown) << length;
  }
}

TEST_P(JumpListOfVersion, WithMoreThanItsEntriesIsUnknown) {
  EXPECT_EQ(pinsIn(fileWith(destList(GetParam(), kUsed) + "more")), Pins::unknown);
}

TEST_P(JumpListOfVersion, WithAnEntryLongerThanTheListIsUnknown) {
  std::string list = destList(GetParam(), kUsed);
  putNumber(list, 32 + (GetParam() == 1 ? 112 : 128), 0xFFFF);

  EXPECT_EQ(pinsIn(fileWith(list)), Pins::unknown);
}

TEST(JumpList, OfAnUnknownVersionIsUnknown) {
  for (const std::uint32_t version : {0U, 2U, 5U, 0xFFFFFFFFU}) {
    EXPECT_EQ(pinsIn(jumpList(version, kUsed)), Pins::unknown) << version;
  }
}

TEST(JumpList, WhatIsNoListIsUnknown) {
  EXPECT_EQ(pinsIn(""), Pins::unknown);
  EXPECT_EQ(pinsIn("no list at all"), Pins::unknown);
  EXPECT_EQ(pinsIn(compoundFile({{"Other", destList(4, kUsed)}})), Pins::unknown);
}

}  // namespace
}  // namespace zelvane::test
