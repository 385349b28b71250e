#include "platform/shared/compound_file.h"

#include <gtest/gtest.h>

#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::streamIn;

constexpr std::size_t kTableAt = 512;       // of the builder's files: sector 0
constexpr std::size_t kDirectoryAt = 1024;  // sector 1
constexpr std::size_t kEntry = 128;

std::string twoStreams() {
  return compoundFile({{"small", std::string(100, 's')}, {"large", std::string(5000, 'l')}});
}

TEST(CompoundFile, GivesSmallAndLargeStreams) {
  EXPECT_EQ(streamIn(twoStreams(), "small"), std::string(100, 's'));
  EXPECT_EQ(streamIn(twoStreams(), "large"), std::string(5000, 'l'));
}

TEST(CompoundFile, AnEmptyStreamIsThere) {
  EXPECT_EQ(streamIn(compoundFile({{"empty", ""}}), "empty"), "");
}

TEST(CompoundFile, AStreamThatIsNotThereIsNone) {
  EXPECT_EQ(streamIn(twoStreams(), "smal"), std::nullopt);
  EXPECT_EQ(streamIn(twoStreams(), "Root Entry"), std::nullopt);
}

TEST(CompoundFile, TwoStreamsOfOneNameAreNone) {
  EXPECT_EQ(streamIn(compoundFile({{"one", "1"}, {"one", "2"}}), "one"), std::nullopt);
}

TEST(CompoundFile, WhatIsNoSuchFileHasNoStreams) {
  EXPECT_EQ(streamIn("", "small"), std::nullopt);
  EXPECT_EQ(streamIn(std::string(4096, 'x'), "small"), std::nullopt);
}

TEST(CompoundFile, AFileCutAnywhereGivesTheWholeStreamOrNone) {
  const std::string whole = twoStreams();
  for (std::size_t length = 0; length < whole.size(); length += 7) {
    EXPECT_NE(streamIn(std::string_view(whole).substr(0, length), "large").value_or("l").front(),
              's');
    EXPECT_EQ(streamIn(std::string_view(whole).substr(0, length), "small")
                  .value_or(std::string(100, 's')),
              std::string(100, 's'));
  }
}

TEST(CompoundFile, AChainThatRunsInCirclesIsDamaged) {
  for (std::uint32_t sector = 1; sector < 14; ++sector) {
    std::string file = twoStreams();
    putNumber(file, kTableAt + 4 * std::size_t{sector}, sector);

    EXPECT_EQ(streamIn(file, "small").value_or(std::string(100, 's')), std::string(100, 's'));
    EXPECT_EQ(streamIn(file, "large").value_or(std::string(5000, 'l')), std::string(5000, 'l'));
  }
}

TEST(CompoundFile, ADirectoryThatRunsInCirclesIsDamaged) {
  std::string file = twoStreams();
  putNumber(file, kTableAt + 4, 1);

  EXPECT_EQ(streamIn(file, "small"), std::nullopt);
}

TEST(CompoundFile, ATableNamedInCirclesIsDamaged) {
  std::string file = twoStreams();
  putNumber(file, 68, 1);
  putNumber(file, kDirectoryAt + 508, 1);

  EXPECT_EQ(streamIn(file, "small"), std::nullopt);
}

TEST(CompoundFile, NumbersThatPointOutsideAreDamage) {
  for (const std::size_t at : {std::size_t{48}, std::size_t{76}, kDirectoryAt + 2 * kEntry + 116,
                               kDirectoryAt + 2 * kEntry + 120}) {
    std::string file = twoStreams();
    putNumber(file, at, 0x7FFFFFF0);

    EXPECT_EQ(streamIn(file, "large"), std::nullopt) << at;
  }
}

TEST(CompoundFile, AnyByteMayBeWrong) {
  const std::string whole = twoStreams();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string file = whole;
    file[at] = static_cast<char>(~file[at]);

    EXPECT_LE(streamIn(file, "small").value_or("").size(), file.size());
  }
}

}  // namespace
}  // namespace zelvane::test
