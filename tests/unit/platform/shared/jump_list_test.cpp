#include "platform/shared/jump_list.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/shared/compound_file_writer.h"
#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::compoundFile;
using platform::NamedStream;
using platform::PinnedPart;
using platform::pinnedPart;
using platform::streamsIn;

const std::vector<JumpListEntry> kUsed{{"C:\\private.txt"}, {"C:\\other.txt"}};

std::string fileWith(const std::string& order) { return compoundFile({{"DestList", order}}); }

bool isUnderstood(const std::string& file) { return pinnedPart(file).has_value(); }

class JumpListOfVersion : public testing::TestWithParam<std::uint32_t> {};
INSTANTIATE_TEST_SUITE_P(Known, JumpListOfVersion, testing::Values(1, 3, 4));

TEST_P(JumpListOfVersion, KeepsNothingWhereNothingIsPinned) {
  for (const auto& entries : {kUsed, std::vector<JumpListEntry>()}) {
    const std::optional<PinnedPart> part = pinnedPart(jumpList(GetParam(), entries));

    ASSERT_TRUE(part);
    EXPECT_TRUE(part->streams.empty());
  }
}

TEST_P(JumpListOfVersion, KeepsWhatIsPinnedAndItsLinksByteForByte) {
  const std::string file = jumpList(
      GetParam(), {{"C:\\used"}, {"C:\\pinned", 1}, {"C:\\used too"}, {"C:\\first", 0, 0x1F}});

  const std::optional<PinnedPart> part = pinnedPart(file);

  ASSERT_TRUE(part);
  EXPECT_FALSE(part->isAll);
  EXPECT_EQ(part->streams,
            streamsIn(jumpList(GetParam(), {{"C:\\pinned", 1, 2}, {"C:\\first", 0, 0x1F}})));
}

TEST_P(JumpListOfVersion, IsKeptWholeWhereAllIsPinned) {
  const std::string file = jumpList(GetParam(), {{"C:\\one", 0}, {"C:\\two", 1}});

  const std::optional<PinnedPart> part = pinnedPart(file);

  ASSERT_TRUE(part);
  EXPECT_TRUE(part->isAll);
  EXPECT_EQ(part->streams, streamsIn(file));
}

TEST_P(JumpListOfVersion, LosesLinksThatNoEntryNamesAndKeepsWhatIsNoLink) {
  const std::string order = destList(GetParam(), {{"C:\\pinned", 0}});
  const std::vector<NamedStream> kept{
      {"1", "link"}, {"DestListPropertyStore", "properties"}, {"DestList", order}};
  std::vector<NamedStream> streams = kept;
  streams.insert(streams.begin(), {"2a", "forgotten link"});

  const std::optional<PinnedPart> part = pinnedPart(compoundFile(streams));

  ASSERT_TRUE(part);
  EXPECT_FALSE(part->isAll);
  EXPECT_EQ(part->streams, kept);
}

TEST_P(JumpListOfVersion, IsUnknownWhereTheHeaderAloneSaysThatThereArePins) {
  std::string order = destList(GetParam(), kUsed);
  putNumber(order, 8, 1);

  EXPECT_FALSE(isUnderstood(fileWith(order)));
}

TEST_P(JumpListOfVersion, IsUnknownWhereAnEntryAloneSaysThatItIsPinned) {
  std::string order = destList(GetParam(), {{"C:\\used"}, {"C:\\pinned", 3}});
  putNumber(order, 8, 0);

  EXPECT_FALSE(isUnderstood(fileWith(order)));
}

TEST_P(JumpListOfVersion, IsUnknownWhereAPinHasNoLinkOrSharesIt) {
  EXPECT_FALSE(isUnderstood(fileWith(destList(GetParam(), {{"C:\\pinned", 0}}))));
  EXPECT_FALSE(isUnderstood(
      compoundFile({{"7", "link"},
                    {"DestList", destList(GetParam(), {{"C:\\one", 0, 7}, {"C:\\two", 1, 7}})}})));
}

TEST_P(JumpListOfVersion, OfManyEntriesIsReadToTheLast) {
  std::vector<JumpListEntry> entries(100, {"C:\\a document with a long name.txt"});
  entries.back().pin = 0;

  const std::optional<PinnedPart> part = pinnedPart(jumpList(GetParam(), entries));

  ASSERT_TRUE(part);
  ASSERT_EQ(part->streams.size(), 2U);
  EXPECT_EQ(part->streams.front().name, "64");
}

TEST_P(JumpListOfVersion, CutAnywhereIsUnknown) {
  const std::string order = destList(GetParam(), kUsed);
  for (std::size_t length = 0; length < order.size(); ++length) {
    EXPECT_FALSE(isUnderstood(fileWith(order.substr(0, length)))) << length;
  }
}

TEST_P(JumpListOfVersion, WithMoreThanItsEntriesIsUnknown) {
  EXPECT_FALSE(isUnderstood(fileWith(destList(GetParam(), kUsed) + "more")));
}

TEST_P(JumpListOfVersion, WithAnEntryLongerThanTheListIsUnknown) {
  std::string order = destList(GetParam(), kUsed);
  putNumber(order, 32 + (GetParam() == 1 ? 112 : 128), 0xFFFF);

  EXPECT_FALSE(isUnderstood(fileWith(order)));
}

TEST(JumpList, OfAnUnknownVersionIsUnknown) {
  for (const std::uint32_t version : {0U, 2U, 5U, 0xFFFFFFFFU}) {
    EXPECT_FALSE(isUnderstood(jumpList(version, kUsed))) << version;
  }
}

TEST(JumpList, WhatIsNoListIsUnknown) {
  EXPECT_FALSE(isUnderstood(""));
  EXPECT_FALSE(isUnderstood("no list at all"));
  EXPECT_FALSE(isUnderstood(compoundFile({{"Other", destList(4, kUsed)}})));
}

}  // namespace
}  // namespace zelvane::test
