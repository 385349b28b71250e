#include "platform/shared/compound_file.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "platform/shared/compound_file_writer.h"
#include "platform/shared/little_endian.h"
#include "tests/support/jump_list_file.h"

namespace zelvane::test {
namespace {

using platform::compoundFile;
using platform::NamedStream;
using platform::streamsIn;

std::optional<std::string> streamIn(std::string_view file, std::string_view name) {
  const std::optional<std::vector<NamedStream>> streams = streamsIn(file);
  if (!streams) return std::nullopt;
  const auto found = std::ranges::find(*streams, name, &NamedStream::name);
  return found == streams->end() ? std::nullopt : std::optional(found->content);
}

constexpr std::size_t kEntry = 128;

// Where a header's number leads to.
std::uint32_t sectorIn(const std::string& file, std::size_t at) {
  return platform::littleEndian<std::uint32_t>(file, at);
}
std::size_t placeOf(std::uint32_t sector) { return 512 * (std::size_t{sector} + 1); }
std::size_t tableOf(const std::string& file) { return placeOf(sectorIn(file, 76)); }
std::uint32_t directorySector(const std::string& file) { return sectorIn(file, 48); }
std::size_t directoryOf(const std::string& file) { return placeOf(directorySector(file)); }

std::string twoStreams() {
  return compoundFile({{"small", std::string(100, 's')}, {"large", std::string(5000, 'l')}});
}

TEST(CompoundFile, GivesSmallAndLargeStreams) {
  EXPECT_EQ(streamIn(twoStreams(), "small"), std::string(100, 's'));
  EXPECT_EQ(streamIn(twoStreams(), "large"), std::string(5000, 'l'));
}

TEST(CompoundFile, ListsItsStreamsInOrder) {
  const std::vector<NamedStream> streams{
      {"small", "1"}, {"large", std::string(5000, 'l')}, {"empty", ""}, {"last", "2"}};

  EXPECT_EQ(streamsIn(compoundFile(streams)), streams);
  EXPECT_EQ(streamsIn(compoundFile({})), std::vector<NamedStream>());
}

TEST(CompoundFile, AStorageInItIsNotUnderstood) {
  constexpr char kStorage = 1;
  std::string file = twoStreams();
  file[directoryOf(file) + kEntry + 66] = kStorage;

  EXPECT_EQ(streamsIn(file), std::nullopt);
}

TEST(CompoundFile, ANameThatIsNotAsciiIsNotUnderstood) {
  std::string file = twoStreams();
  file[directoryOf(file) + kEntry] = '\xE4';

  EXPECT_EQ(streamsIn(file), std::nullopt);
}

TEST(CompoundFile, AStreamWithoutANameIsDamaged) {
  std::string file = twoStreams();
  file[directoryOf(file) + kEntry + 64] = 2;

  EXPECT_EQ(streamsIn(file), std::nullopt);
}

TEST(CompoundFile, StreamsThatShareTheirSectorsAreDamaged) {
  std::string file = twoStreams();
  for (const std::size_t fact : {std::size_t{116}, std::size_t{120}}) {
    for (std::size_t byte = fact; byte < fact + 4; ++byte) {
      file[directoryOf(file) + kEntry + byte] = file[directoryOf(file) + 2 * kEntry + byte];
    }
  }

  EXPECT_EQ(streamsIn(file), std::nullopt);
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
  EXPECT_EQ(streamIn(compoundFile({{"one", "1"}, {"One", "2"}}), "one"), std::nullopt);
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
  for (std::uint32_t sector = 0; sector < 14; ++sector) {
    std::string file = twoStreams();
    putNumber(file, tableOf(file) + 4 * std::size_t{sector}, sector);

    EXPECT_EQ(streamIn(file, "small").value_or(std::string(100, 's')), std::string(100, 's'));
    EXPECT_EQ(streamIn(file, "large").value_or(std::string(5000, 'l')), std::string(5000, 'l'));
  }
}

TEST(CompoundFile, ADirectoryThatRunsInCirclesIsDamaged) {
  std::string file = twoStreams();
  putNumber(file, tableOf(file) + 4 * std::size_t{directorySector(file)}, directorySector(file));

  EXPECT_EQ(streamIn(file, "small"), std::nullopt);
}

TEST(CompoundFile, ATableNamedInCirclesIsDamaged) {
  std::string file = twoStreams();
  putNumber(file, 68, directorySector(file));
  putNumber(file, directoryOf(file) + 508, directorySector(file));

  EXPECT_EQ(streamIn(file, "small"), std::nullopt);
}

TEST(CompoundFile, NumbersThatPointOutsideAreDamage) {
  const std::string whole = twoStreams();
  const std::size_t large = directoryOf(whole) + 2 * kEntry;
  for (const std::size_t at : {std::size_t{48}, std::size_t{76}, large + 116, large + 120}) {
    std::string file = whole;
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
