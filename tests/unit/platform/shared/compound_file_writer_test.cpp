#include "platform/shared/compound_file_writer.h"

#include <cctype>
#include <optional>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/shared/little_endian.h"

namespace zelvane::test {
namespace {

using platform::compoundFile;
using platform::littleEndian;
using platform::NamedStream;
using platform::streamsIn;

std::string textOf(std::size_t size) {
  std::string text;
  while (text.size() < size) text += std::to_string(text.size()) + " ";
  text.resize(size);
  return text;
}

std::vector<NamedStream> streamsOf(const std::vector<std::size_t>& sizes) {
  std::vector<NamedStream> streams;
  streams.reserve(sizes.size());
  for (const std::size_t size : sizes) {
    streams.push_back({"stream " + std::to_string(streams.size()), textOf(size)});
  }
  return streams;
}

TEST(CompoundFileWriter, WritesStreamsOfAnySize) {
  for (const std::size_t size :
       {0U, 1U, 63U, 64U, 65U, 511U, 512U, 513U, 4095U, 4096U, 4097U, 100000U}) {
    const std::vector<NamedStream> streams = streamsOf({10, size});
    EXPECT_EQ(streamsIn(compoundFile(streams)), streams) << size;
  }
}

TEST(CompoundFileWriter, WritesAnyNumberOfStreamsInTheirOrder) {
  for (std::size_t count = 0; count < 300; count += 7) {
    std::vector<std::size_t> sizes;
    for (std::size_t place = 0; place < count; ++place) sizes.push_back(place * 37 % 5000);
    const std::vector<NamedStream> streams = streamsOf(sizes);

    EXPECT_EQ(streamsIn(compoundFile(streams)), streams) << count;
  }
}

TEST(CompoundFileWriter, WritesATableForEachSectorWhereverTheTableEnds) {
  for (std::size_t sectors = 120; sectors < 270; ++sectors) {
    const std::vector<NamedStream> streams = streamsOf({512 * sectors});

    EXPECT_EQ(streamsIn(compoundFile(streams)), streams) << sectors;
  }
}

TEST(CompoundFileWriter, WritesNothingButStreamsAndZeros) {
  const std::string file = compoundFile(streamsOf({1}));

  constexpr std::size_t kSector = 512;
  EXPECT_EQ(file.size(), kSector * 5);  // header, small streams, their table, directory, table
  EXPECT_EQ(file.find_first_not_of('\0', kSector + 1), kSector * 2);
}

TEST(CompoundFileWriter, RefusesWhatItsTableCannotHold) {
  constexpr std::size_t kMost = std::size_t{109} * 127 * 512;
  // One sector is the directory.
  const std::string most(kMost - 512, 'x');

  EXPECT_EQ(streamsIn(compoundFile({{"large", most}})),
            (std::vector<NamedStream>{{"large", most}}));
  EXPECT_THROW(compoundFile({{"large", most + "x"}}), platform::Error);
}

// Looks a name up by the tree, as the system does: shorter names are to the left of longer ones,
// and those of one length in the order of their capitals. Its content, where it is no small stream.
std::optional<std::size_t> sizeByTree(const std::string& file, std::string_view name) {
  const std::size_t directory = 512 * (std::size_t{littleEndian<std::uint32_t>(file, 48)} + 1);
  auto which = littleEndian<std::uint32_t>(file, directory + 76);
  while (which != 0xFFFFFFFF) {
    const std::size_t entry = directory + 128 * std::size_t{which};
    const std::size_t length = littleEndian<std::uint16_t>(file, entry + 64) / 2U - 1;
    int order = static_cast<int>(name.size()) - static_cast<int>(length);
    for (std::size_t at = 0; order == 0 && at < length; ++at) {
      order = std::toupper(name[at]) - std::toupper(file[entry + 2 * at]);
    }
    if (order == 0) return littleEndian<std::uint32_t>(file, entry + 120);
    which = littleEndian<std::uint32_t>(file, entry + (order < 0 ? 68 : 72));
  }
  return std::nullopt;
}

TEST(CompoundFileWriter, EachStreamIsFoundByTheTree) {
  std::vector<NamedStream> streams{{"DestListPropertyStore", "1"}, {"a_", "22"}, {"ab", "333"}};
  for (std::size_t number = 0; number < 40; ++number) {
    streams.push_back({std::to_string(number * 7), std::string(number, '4')});
  }
  const std::string file = compoundFile(streams);

  for (const auto& [name, content] : streams) EXPECT_EQ(sizeByTree(file, name), content.size());
  EXPECT_EQ(sizeByTree(file, "none"), std::nullopt);
}

}  // namespace
}  // namespace zelvane::test
