#include "popupkiller/alert_sound.h"

#include <optional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::popupkiller {
namespace {

constexpr auto kFolder = "/home/user/.local/share/zelvane";
constexpr auto kFile = "/home/user/.local/share/zelvane/wavpath.txt";

class AlertSoundTest : public testing::Test {
 protected:
  void write(const std::string& text) { desktop.fileSystem.addFile(kFile, text); }
  std::optional<std::string> written() const { return desktop.fileSystem.content(kFile); }
  const std::string& path() const { return page.CommonDialog1.fileName; }

  platform::MemoryDesktop desktop;
  PopupPage page;
  AlertSound sound{page, desktop.files, desktop.dialogs, desktop.identity,
                   core::Handler(desktop.dialogs, desktop.identity)};
};

TEST_F(AlertSoundTest, AsInstalledThePathIsEmpty) {
  sound.readPath();
  sound.showPath();

  EXPECT_EQ(path(), "");
  EXPECT_EQ(page.Label14.caption(), "");
}

struct Line {
  std::string text;
  std::string path;

  friend void PrintTo(const Line& line, std::ostream* out) {
    *out << testing::PrintToString(line.text);
  }
};

class AlertSoundLineTest : public AlertSoundTest, public testing::WithParamInterface<Line> {};

TEST_P(AlertSoundLineTest, HoldsThePath) {
  write(GetParam().text);

  sound.readPath();

  EXPECT_EQ(path(), GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(TheFirstLine, AlertSoundLineTest,
                         testing::Values(Line{"/a b/dröhn.wav\r\n", "/a b/dröhn.wav"},
                                         Line{"/a.wav\n", "/a.wav"}, Line{"/a.wav\r", "/a.wav"},
                                         Line{"/a.wav", "/a.wav"},
                                         Line{"/a.wav\r\n/b.wav\r\n", "/a.wav"},
                                         Line{" /a.wav \r\n", " /a.wav "},
                                         Line{"\"/a.wav\"\r\n", "\"/a.wav\""}, Line{"", ""},
                                         Line{"\r\n/b.wav\r\n", ""}));

TEST_F(AlertSoundTest, AnEndlessLineIsCut) {
  write(std::string(1'000'000, 'a'));

  sound.readPath();

  EXPECT_EQ(path(), std::string(65'536, 'a'));
}

TEST_F(AlertSoundTest, AMissingFileIsAnError) {
  desktop.fileSystem.vanish(kFile);

  try {
    sound.readPath();
    FAIL();
  } catch (const platform::Error& error) {
    EXPECT_EQ(error.number(), platform::ErrorNumber::fileNotFound);
  }
}

TEST_F(AlertSoundTest, TheButtonAsksForASoundInTheFolderWithTheUsualOne) {
  page.Command1.click();

  ASSERT_EQ(desktop.dialogs.fileQuestions().size(), 1U);
  EXPECT_EQ(desktop.dialogs.fileQuestions()[0].title, "Choose a Wav file to open");
  EXPECT_EQ(desktop.dialogs.fileQuestions()[0].filter, "Wav files |*.wav");
  EXPECT_EQ(desktop.dialogs.fileQuestions()[0].initialFolder, kFolder);
}

TEST_F(AlertSoundTest, AChosenFileIsWrittenAsOneLineAndShown) {
  desktop.dialogs.answer("/music/gong.wav");

  page.Command1.click();

  EXPECT_EQ(path(), "/music/gong.wav");
  EXPECT_EQ(written(), "/music/gong.wav\r\n");
  EXPECT_EQ(page.Label14.caption(), "/music/gong.wav");
}

TEST_F(AlertSoundTest, AChosenFileNeedNotExistNorBeASound) {
  desktop.dialogs.answer("/nowhere/letter.txt");

  page.Command1.click();

  EXPECT_EQ(written(), "/nowhere/letter.txt\r\n");
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(AlertSoundTest, CancellingKeepsThePathAndRewritesTheFileAllTheSame) {
  page.CommonDialog1.fileName = "/music/gong.wav";
  write("something else\r\nand more\r\n");

  page.Command1.click();

  EXPECT_EQ(path(), "/music/gong.wav");
  EXPECT_EQ(written(), "/music/gong.wav\r\n");
  EXPECT_EQ(page.Label14.caption(), "/music/gong.wav");
}

TEST_F(AlertSoundTest, CancellingBeforeAnySoundWasChosenWritesAnEmptyLine) {
  desktop.fileSystem.vanish(kFile);

  page.Command1.click();

  EXPECT_EQ(written(), "\r\n");
}

TEST_F(AlertSoundTest, TheChoiceLastsToTheNextLoad) {
  desktop.dialogs.answer("/music/gong.wav");
  page.Command1.click();
  page.CommonDialog1.fileName.clear();

  sound.readPath();

  EXPECT_EQ(path(), "/music/gong.wav");
}

TEST_F(AlertSoundTest, AFolderThatCannotBeWrittenIsReportedAndTheLabelStays) {
  desktop.fileSystem.addFolder(kFolder, {.foreign = true});
  desktop.dialogs.answer("/music/gong.wav");

  page.Command1.click();

  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 70 - Permission denied");
  EXPECT_EQ(page.Label14.caption(), "");
  EXPECT_EQ(written(), "\r\n");
}

TEST_F(AlertSoundTest, AFullDiskIsReportedAndTheFileStaysWhole) {
  write("/old.wav\r\n");
  desktop.files.fillDisk();
  desktop.dialogs.answer("/music/gong.wav");

  page.Command1.click();

  EXPECT_EQ(desktop.dialogs.lastText(), "Error: 61 - Disk full");
  EXPECT_EQ(written(), "/old.wav\r\n");
}

TEST_F(AlertSoundTest, WhereTheSeparatorIsAnotherSoIsThePath) {
  desktop.identity.facts.dataFolder = "/data";
  desktop.identity.facts.separator = '\\';
  desktop.fileSystem.addFile("/data\\wavpath.txt", "C:\\gong.wav\r\n");

  sound.readPath();

  EXPECT_EQ(path(), "C:\\gong.wav");
}

}  // namespace
}  // namespace zelvane::popupkiller
