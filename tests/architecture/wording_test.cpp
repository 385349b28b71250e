#include "tests/architecture/wording.h"

#include <string>

#include <gtest/gtest.h>

namespace zelvane::architecture {

namespace {

std::string complaint(const std::string& line) { return list(forbiddenWords({"a.md", line})); }

}  // namespace

// What is refused is written in two pieces here, or this file would be refused.

TEST(Wording, AViolationNamesFileLineAndWord) {
  EXPECT_EQ(complaint("fine\n// TO"
                      "DO later\n"),
            "a.md:2: says \"TO"
            "DO\"\n");
}

TEST(Wording, PromisesAreRefused) {
  EXPECT_NE(complaint("FIX"
                      "ME"),
            "");
  EXPECT_NE(complaint("a HA"
                      "CK for now"),
            "");
  EXPECT_NE(complaint("(XX"
                      "X)"),
            "");
}

TEST(Wording, PromisesWithinAnotherWordAreNotMeant) {
  EXPECT_EQ(complaint("mktemp -d zelvane.XXXXXX"), "");
  EXPECT_EQ(complaint("MASTODON"), "");
}

TEST(Wording, PapersThatTheReaderLacksAreRefused) {
  EXPECT_NE(complaint("see the sp"
                      "ec"),
            "");
  EXPECT_NE(complaint("The Speci"
                      "fication says"),
            "");
  EXPECT_NE(complaint("as in Pa"
                      "rt 2.3"),
            "");
  EXPECT_NE(complaint("rul"
                      "ing 8"),
            "");
  EXPECT_NE(complaint("closes iss"
                      "ue #12"),
            "");
}

TEST(Wording, PublishedPapersMayBeNamed) {
  EXPECT_EQ(complaint("the freedesktop.org trash speci"
                      "fication"),
            "");
  EXPECT_EQ(complaint("Part of the window"), "");
  EXPECT_EQ(complaint("spectacle"), "");
}

TEST(Wording, PlacesOfOneMachineAreRefused) {
  EXPECT_NE(complaint("cd /wo"
                      "rk/main"),
            "");
  EXPECT_NE(complaint("/tm"
                      "p/z/notes"),
            "");
}

TEST(Wording, PlacesOfEveryMachineMayBeNamed) { EXPECT_EQ(complaint("/tmp/zelvane-check"), ""); }

}  // namespace zelvane::architecture
