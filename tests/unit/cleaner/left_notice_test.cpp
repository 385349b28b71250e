#include "cleaner/left_notice.h"

#include <gtest/gtest.h>

namespace zelvane::cleaner {
namespace {

TEST(LeftNotice, AnOpenBrowserIsToBeClosed) {
  EXPECT_EQ(noticeOf({{"Firefox (home)", ""}}),
            "Firefox (home) is open. Its traces were left: close it and clean again.");
}

TEST(LeftNotice, WhatCannotBeUnderstoodIsNamed) {
  EXPECT_EQ(noticeOf({{"Chromium (Default)", "History is damaged"}}),
            "Chromium (Default): History is damaged. It was left as it is.");
}

TEST(LeftNotice, EachHasALine) {
  const std::string notice = noticeOf({{"A", ""}, {"B", "x"}});

  EXPECT_EQ(notice.substr(notice.find('\n')), "\nB: x. It was left as it is.");
}

}  // namespace
}  // namespace zelvane::cleaner
