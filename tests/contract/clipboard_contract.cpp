#include "tests/contract/clipboard_contract.h"

namespace zelvane::test {
namespace {

TEST_P(ClipboardContract, WhatWasCopiedCanNoLongerBePasted) {
  bed->copy("a password");
  ASSERT_NE(bed->pasted(), "");

  bed->clipboard().clear();

  EXPECT_EQ(bed->pasted(), "");
}

TEST_P(ClipboardContract, AnEmptyOneStaysEmpty) {
  bed->clipboard().clear();
  bed->clipboard().clear();

  EXPECT_EQ(bed->pasted(), "");
}

TEST_P(ClipboardContract, AfterItOneCopiesAsBefore) {
  bed->clipboard().clear();

  bed->copy("a new text");

  EXPECT_NE(bed->pasted().find("a new text"), std::string::npos);
}

}  // namespace
}  // namespace zelvane::test
