#include "tests/contract/sound_contract.h"

namespace zelvane::test {
namespace {

TEST_P(SoundContract, AFileIsHeard) {
  bed->sound().play(bed->file());

  EXPECT_EQ(bed->heard(), "the file");
}

TEST_P(SoundContract, InPlaceOfAMissingFileTheDefaultIsHeard) {
  bed->sound().play(bed->missing());

  EXPECT_EQ(bed->heard(), "the default");
}

TEST_P(SoundContract, ForTheEmptyPathTheDefaultIsHeard) {
  bed->sound().play("");

  EXPECT_EQ(bed->heard(), "the default");
}

TEST_P(SoundContract, APathWithAZeroByteIsThatOfNoFile) {
  bed->sound().play(bed->file() + std::string(1, '\0') + "x");

  EXPECT_EQ(bed->heard(), "the default");
}

TEST_P(SoundContract, AfterOneSoundThereIsTheNext) {
  bed->sound().play(bed->missing());
  const std::string first = bed->heard();
  bed->sound().play(bed->file());

  EXPECT_EQ(first, "the default");
  EXPECT_EQ(bed->heard(), "the file");
}

}  // namespace
}  // namespace zelvane::test
