#include "tests/contract/profile_file_contract.h"

#include <optional>

namespace zelvane::test {
namespace {

TEST_P(ProfileFileContract, AMissingFileHasNoEntries) {
  EXPECT_EQ(profile.find("Extensions", "DVK"), std::nullopt);
}

TEST_P(ProfileFileContract, WhatWasWrittenIsFound) {
  EXPECT_TRUE(profile.write("Extensions", "DVK", "/opt/zelvaneZelvane.exe ^.DVK"));

  EXPECT_EQ(profile.find("Extensions", "DVK"), "/opt/zelvaneZelvane.exe ^.DVK");
}

TEST_P(ProfileFileContract, AnEmptyEntryIsThere) {
  bed->setContent("[Extensions]\r\nDVK=\r\n");

  EXPECT_EQ(profile.find("Extensions", "DVK"), "");
}

TEST_P(ProfileFileContract, AKeyOfAnotherSectionIsNotFound) {
  bed->setContent("[fonts]\r\nDVK=a\r\n[Extensions]\r\ntxt=b\r\n");

  EXPECT_EQ(profile.find("Extensions", "DVK"), std::nullopt);
  EXPECT_EQ(profile.find("missing", "DVK"), std::nullopt);
}

TEST_P(ProfileFileContract, NamesAreToldApartWithoutRegardToCase) {
  bed->setContent("[EXTENSIONS]\r\ndvk=first\r\n");

  EXPECT_EQ(profile.find("Extensions", "DVK"), "first");
  EXPECT_TRUE(profile.write("extensions", "Dvk", "second"));
  EXPECT_EQ(profile.find("EXTENSIONS", "dvk"), "second");
}

TEST_P(ProfileFileContract, TheFirstOfTwoEqualKeysIsMeant) {
  bed->setContent("[Extensions]\r\nDVK=first\r\nDVK=second\r\n");

  EXPECT_EQ(profile.find("Extensions", "DVK"), "first");
}

TEST_P(ProfileFileContract, BlanksAndOnePairOfQuotesAroundATextAreNotOfIt) {
  bed->setContent(
      "[s]\r\n a = text \r\nb= \" text \" \r\nc='text'\r\nd=\"\"text\"\"\r\ne=\"text\r\n"
      "f=text\"\r\ng=\"\r\nh=\"\"\r\ni=\"text'\r\nj=a=b\r\n");

  EXPECT_EQ(profile.find("s", "a"), "text");
  EXPECT_EQ(profile.find("s", "b"), " text ");
  EXPECT_EQ(profile.find("s", "c"), "text");
  EXPECT_EQ(profile.find("s", "d"), "\"text\"");
  EXPECT_EQ(profile.find("s", "e"), "\"text");
  EXPECT_EQ(profile.find("s", "f"), "text\"");
  EXPECT_EQ(profile.find("s", "g"), "\"");
  EXPECT_EQ(profile.find("s", "h"), "");
  EXPECT_EQ(profile.find("s", "i"), "\"text'");
  EXPECT_EQ(profile.find("s", "j"), "a=b");
}

TEST_P(ProfileFileContract, ACommentHoldsNoEntry) {
  bed->setContent("[Extensions]\r\n;DVK=a\r\n ; txt=b\r\n");

  EXPECT_EQ(profile.find("Extensions", "DVK"), std::nullopt);
  EXPECT_EQ(profile.find("Extensions", ";DVK"), std::nullopt);
  EXPECT_EQ(profile.find("Extensions", "txt"), std::nullopt);
}

TEST_P(ProfileFileContract, ALongTextIsCutToWhatTheBufferTakes) {
  bed->setContent("[s]\r\nfits=" + std::string(254, 'x') + "\r\nlong=" + std::string(255, 'x') +
                  "\r\n");

  EXPECT_EQ(profile.find("s", "fits"), std::string(254, 'x'));
  EXPECT_EQ(profile.find("s", "long"), std::string(254, 'x'));
}

TEST_P(ProfileFileContract, ATextIsNeverCutInsideACharacter) {
  bed->setContent("[s]\r\ntwo=" + std::string(253, 'x') + "éy\r\nfour=" + std::string(251, 'x') +
                  "😀\r\n");

  EXPECT_EQ(profile.find("s", "two"), std::string(253, 'x'));
  EXPECT_EQ(profile.find("s", "four"), std::string(251, 'x'));
}

TEST_P(ProfileFileContract, WritingChangesOneLineAndKeepsEveryOtherByte) {
  bed->setContent(
      "before\r\n; comment\r\n\r\n[windows]\r\nload=\r\n\r\n[Extensions]\r\n txt = notepad "
      "^.txt\r\n"
      "DVK=old\r\nno entry at all\r\n;DVK=comment\r\n\r\n[fonts]\r\nDVK=other\r\n");

  EXPECT_TRUE(profile.write("Extensions", "DVK", "new"));

  EXPECT_EQ(bed->content(),
            "before\r\n; comment\r\n\r\n[windows]\r\nload=\r\n\r\n[Extensions]\r\n txt = notepad "
            "^.txt\r\n"
            "DVK=new\r\nno entry at all\r\n;DVK=comment\r\n\r\n[fonts]\r\nDVK=other\r\n");
}

TEST_P(ProfileFileContract, ANewKeyJoinsItsSection) {
  bed->setContent("[Extensions]\r\ntxt=notepad\r\n\r\n[fonts]\r\nx=y\r\n");

  EXPECT_TRUE(profile.write("Extensions", "DVK", "zelvane"));

  EXPECT_EQ(bed->content(), "[Extensions]\r\ntxt=notepad\r\nDVK=zelvane\r\n\r\n[fonts]\r\nx=y\r\n");
}

TEST_P(ProfileFileContract, ANewSectionComesLast) {
  bed->setContent("[fonts]\r\nx=y\r\n");

  EXPECT_TRUE(profile.write("Extensions", "DVK", "zelvane"));

  EXPECT_EQ(bed->content(), "[fonts]\r\nx=y\r\n[Extensions]\r\nDVK=zelvane\r\n");
}

TEST_P(ProfileFileContract, ANewFileHasTheLineEndsOfItsKind) {
  EXPECT_TRUE(profile.write("Extensions", "DVK", "zelvane"));

  EXPECT_EQ(bed->content(), "[Extensions]\r\nDVK=zelvane\r\n");
}

TEST_P(ProfileFileContract, ATextWithALineBreakIsRefused) {
  bed->setContent("[Extensions]\r\nDVK=old\r\n");

  EXPECT_FALSE(profile.write("Extensions", "DVK", "a\nb"));
  EXPECT_FALSE(profile.write("Extensions", "DVK", "a\rb"));
  EXPECT_FALSE(profile.write("Extensions", "a\nb", "text"));
  EXPECT_FALSE(profile.write("a\nb", "DVK", "text"));
  EXPECT_EQ(bed->content(), "[Extensions]\r\nDVK=old\r\n");
}

TEST_P(ProfileFileContract, AFileThatCannotBeWrittenSaysSo) {
  bed->setContent("[Extensions]\r\nDVK=old\r\n");
  bed->makeUnwritable();

  EXPECT_FALSE(profile.write("Extensions", "DVK", "new"));
}

}  // namespace
}  // namespace zelvane::test
