#include "tests/contract/recycle_bin_contract.h"

#include "platform/error.h"

namespace zelvane::test {

using platform::Error;
using platform::ErrorNumber;

TEST_P(RecycleBinContract, AnEmptyBinFreesNothing) { EXPECT_EQ(bed->empty(), 0U); }

TEST_P(RecycleBinContract, EmptyingReportsTheBytesItFreed) {
  bed->put("a.txt", 3);
  bed->put("b.txt", 4);

  EXPECT_EQ(bed->empty(), 7U);
  EXPECT_EQ(bed->empty(), 0U);
}

TEST_P(RecycleBinContract, NothingCanBeRestoredAfterwards) {
  bed->put("a.txt", 3);

  bed->empty();

  EXPECT_FALSE(bed->has("a.txt"));
}

TEST_P(RecycleBinContract, TheBinsOfAllVolumesAreEmptied) {
  bed->put("a.txt", 3);
  bed->putFromOtherVolume("b.txt", 40);

  EXPECT_EQ(bed->empty(), 43U);
  EXPECT_FALSE(bed->has("a.txt"));
  EXPECT_FALSE(bed->has("b.txt"));
}

TEST_P(RecycleBinContract, WhatRefusesStaysWithItsNoteAndIsReportedAfterTheRestIsGone) {
  if (const std::string why = bed->whyNoRefusals(); !why.empty()) GTEST_SKIP() << why;
  bed->put("a.txt", 1);
  bed->putRefusing("refusing");
  bed->put("z.txt", 1);
  bed->putFromOtherVolume("other.txt", 1);

  ErrorNumber thrown{};
  try {
    bed->empty();
  } catch (const Error& error) {
    thrown = error.number();
  }

  EXPECT_EQ(thrown, ErrorNumber::permissionDenied);
  EXPECT_TRUE(bed->has("refusing"));
  EXPECT_FALSE(bed->has("a.txt"));
  EXPECT_FALSE(bed->has("z.txt"));
  EXPECT_FALSE(bed->has("other.txt"));
}

}  // namespace zelvane::test
