#include "tests/contract/files_contract.h"

#include "platform/error.h"

namespace zelvane::test {

using platform::Error;
using platform::ErrorNumber;

void FilesContract::replace(const std::string& name, const std::string& content) {
  const auto file = bed->files().createBeside(bed->path(name));
  file->write(content);
  file->publish();
}

namespace {

constexpr std::uint64_t kAnySize = 1'000'000;  // bytes

// The number of the error that the action throws; internal when it throws none.
template <typename Action>
ErrorNumber errorOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.number();
  }
  return ErrorNumber::internal;
}

}  // namespace

TEST_P(FilesContract, AFileExistsAndSoDoesALinkToIt) {
  bed->addFile("file", "");
  bed->addLink("link", bed->path("file"));

  EXPECT_TRUE(bed->files().exists(bed->path("file")));
  EXPECT_TRUE(bed->files().exists(bed->path("link")));
}

TEST_P(FilesContract, AFolderALinkToItALinkToNothingAndNothingAreNoFiles) {
  bed->addFolder("folder");
  bed->addLink("toFolder", bed->path("folder"));
  bed->addLink("toNothing", bed->path("nothing"));

  EXPECT_FALSE(bed->files().exists(bed->path("folder")));
  EXPECT_FALSE(bed->files().exists(bed->path("toFolder")));
  EXPECT_FALSE(bed->files().exists(bed->path("toNothing")));
  EXPECT_FALSE(bed->files().exists(bed->path("nothing")));
  EXPECT_FALSE(bed->files().exists(""));
}

TEST_P(FilesContract, AFileIsReadWhole) {
  bed->addFile("file", std::string("a\0\r\n\xff", 5));

  EXPECT_EQ(bed->files().readWhole(bed->path("file"), kAnySize), std::string("a\0\r\n\xff", 5));
}

TEST_P(FilesContract, AnEmptyFileIsReadAsNoBytes) {
  bed->addFile("file", "");

  EXPECT_EQ(bed->files().readWhole(bed->path("file"), kAnySize), "");
}

TEST_P(FilesContract, AFileLongerThanTheLimitIsRefusedAndOneOfThatLengthIsRead) {
  bed->addFile("file", "12345");

  EXPECT_EQ(bed->files().readWhole(bed->path("file"), 5), "12345");
  EXPECT_EQ(errorOf([&] { bed->files().readWhole(bed->path("file"), 4); }),
            ErrorNumber::accessError);
}

TEST_P(FilesContract, AStreamGivesPiecesAndThenNothing) {
  bed->addFile("file", "12345");

  const auto stream = bed->files().open(bed->path("file"));

  EXPECT_EQ(stream->read(2), "12");
  EXPECT_EQ(stream->read(2), "34");
  EXPECT_EQ(stream->read(2), "5");
  EXPECT_EQ(stream->read(2), "");
}

TEST_P(FilesContract, AStreamGivesAPieceLongerThanAnyBufferWhole) {
  const std::string content(300'000, 'x');
  bed->addFile("file", content);

  EXPECT_EQ(bed->files().open(bed->path("file"))->read(content.size() + 1), content);
}

TEST_P(FilesContract, WhatIsNotThereCannotBeRead) {
  bed->addLink("link", bed->path("nothing"));
  bed->addFile("file", "");

  for (const std::string name : {"nothing", "link", "noFolder/file", "file/below"}) {
    EXPECT_EQ(errorOf([&] { bed->files().open(bed->path(name)); }), ErrorNumber::fileNotFound)
        << name;
  }
  EXPECT_EQ(errorOf([&] { bed->files().open(""); }), ErrorNumber::fileNotFound);
}

TEST_P(FilesContract, AFolderCannotBeRead) {
  bed->addFolder("folder");

  EXPECT_EQ(errorOf([&] { bed->files().open(bed->path("folder")); }), ErrorNumber::accessError);
}

TEST_P(FilesContract, ASocketCannotBeRead) {
  if (const std::string why = bed->whyNoSockets(); !why.empty()) GTEST_SKIP() << why;
  bed->addSocket("socket");

  EXPECT_EQ(errorOf([&] { bed->files().open(bed->path("socket")); }), ErrorNumber::accessError);
}

TEST_P(FilesContract, AFileIsDeleted) {
  bed->addFile("file", "content");

  bed->files().remove(bed->path("file"));

  EXPECT_FALSE(bed->content("file"));
}

TEST_P(FilesContract, DeletingALinkKeepsWhatItLeadsTo) {
  if (const std::string why = bed->whyNoLinks(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("file", "content");
  bed->addLink("link", bed->path("file"));

  bed->files().remove(bed->path("link"));

  EXPECT_FALSE(bed->isLink("link"));
  EXPECT_EQ(bed->content("file"), "content");
}

TEST_P(FilesContract, DeletingNeverDeletesAFolder) {
  bed->addFolder("folder");

  EXPECT_EQ(errorOf([&] { bed->files().remove(bed->path("folder")); }), ErrorNumber::accessError);
  EXPECT_THROW(bed->files().remove(bed->path("folder/")), Error);
  EXPECT_EQ(bed->entries("folder"), 0U);
}

TEST_P(FilesContract, DeletingWhatIsNotThereIsAnError) {
  EXPECT_EQ(errorOf([&] { bed->files().remove(bed->path("nothing")); }), ErrorNumber::fileNotFound);
}

TEST_P(FilesContract, TheNameToDeleteIsNoPattern) {
  bed->addFile("file", "content");

  EXPECT_THROW(bed->files().remove(bed->path("*")), Error);
  EXPECT_EQ(bed->content("file"), "content");
}

TEST_P(FilesContract, DeletingFromAProtectedFolderIsDenied) {
  if (const std::string why = bed->whyNoRefusals(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("folder/file", "content");
  bed->protectFolder("folder");

  EXPECT_EQ(errorOf([&] { bed->files().remove(bed->path("folder/file")); }),
            ErrorNumber::permissionDenied);
}

TEST_P(FilesContract, APublishedFileHasAllThatWasWritten) {
  const auto file = bed->files().createBeside(bed->path("file"));
  file->write("one ");
  file->write("");
  file->write(std::string(300'000, 'x'));

  file->publish();

  EXPECT_EQ(bed->content("file"), "one " + std::string(300'000, 'x'));
}

TEST_P(FilesContract, NothingIsSeenUnderTheNameBeforeItIsPublished) {
  const auto file = bed->files().createBeside(bed->path("file"));
  file->write("content");

  EXPECT_FALSE(bed->files().exists(bed->path("file")));
}

TEST_P(FilesContract, PublishingReplacesAFileAndLeavesNothingElse) {
  bed->addFile("folder/file", "old and longer");

  replace("folder/file", "new");

  EXPECT_EQ(bed->content("folder/file"), "new");
  EXPECT_EQ(bed->entries("folder"), 1U);
}

TEST_P(FilesContract, PublishingReplacesALinkAndKeepsWhatItLedTo) {
  if (const std::string why = bed->whyNoLinks(); !why.empty()) GTEST_SKIP() << why;
  bed->addFile("target", "kept");
  bed->addLink("link", bed->path("target"));

  replace("link", "new");

  EXPECT_FALSE(bed->isLink("link"));
  EXPECT_EQ(bed->content("link"), "new");
  EXPECT_EQ(bed->content("target"), "kept");
}

TEST_P(FilesContract, AFileThatIsNotPublishedLeavesTheOldOneAndNothingElse) {
  bed->addFile("folder/file", "old");

  bed->files().createBeside(bed->path("folder/file"))->write("new");

  EXPECT_EQ(bed->content("folder/file"), "old");
  EXPECT_EQ(bed->entries("folder"), 1U);
}

TEST_P(FilesContract, AFolderInTheTargetsPlaceIsRefusedAndNothingIsLeft) {
  bed->addFolder("folder/target");

  EXPECT_THROW(replace("folder/target", "new"), Error);
  EXPECT_EQ(bed->entries("folder"), 1U);
  EXPECT_EQ(bed->entries("folder/target"), 0U);
}

TEST_P(FilesContract, AFileInPlaceOfAnotherReplacesIt) {
  bed->addFile("folder/file", "old");

  const auto file = bed->files().createInPlaceOf(bed->path("folder/file"));
  file->write("new");
  file->publish();

  EXPECT_EQ(bed->content("folder/file"), "new");
  EXPECT_EQ(bed->entries("folder"), 1U);
}

TEST_P(FilesContract, NothingIsMadeInPlaceOfALinkAFolderOrNothing) {
  if (const std::string why = bed->whyNoLinks(); !why.empty()) GTEST_SKIP() << why;
  bed->addFolder("folder");
  bed->addFile("target", "kept");
  bed->addLink("link", bed->path("target"));

  for (const std::string name : {"folder", "link"}) {
    EXPECT_EQ(errorOf([&] { bed->files().createInPlaceOf(bed->path(name)); }),
              ErrorNumber::accessError)
        << name;
  }
  EXPECT_EQ(errorOf([&] { bed->files().createInPlaceOf(bed->path("nothing")); }),
            ErrorNumber::fileNotFound);
}

TEST_P(FilesContract, AFileCannotBeCreatedInAFolderThatIsNotThere) {
  EXPECT_EQ(errorOf([&] { bed->files().createBeside(bed->path("nothing/file")); }),
            ErrorNumber::pathNotFound);
}

TEST_P(FilesContract, ATargetWithoutANameIsRefused) {
  bed->addFolder("folder");

  for (const std::string name : {"folder/", "folder/.", "folder/.."}) {
    EXPECT_EQ(errorOf([&] { bed->files().createBeside(bed->path(name)); }),
              ErrorNumber::accessError)
        << name;
  }
}

TEST_P(FilesContract, AFileCannotBeCreatedInAProtectedFolder) {
  if (const std::string why = bed->whyNoRefusals(); !why.empty()) GTEST_SKIP() << why;
  bed->addFolder("folder");
  bed->protectFolder("folder");

  EXPECT_EQ(errorOf([&] { bed->files().createBeside(bed->path("folder/file")); }),
            ErrorNumber::permissionDenied);
}

TEST_P(FilesContract, AReaderKeepsTheOldContentWhileTheFileIsReplaced) {
  if (const std::string why = bed->whyReadersForbidReplacing(); !why.empty()) {
    GTEST_SKIP() << why;
  }
  bed->addFile("file", "old");
  const auto stream = bed->files().open(bed->path("file"));

  replace("file", "new");

  EXPECT_EQ(stream->read(10), "old");
}

}  // namespace zelvane::test
