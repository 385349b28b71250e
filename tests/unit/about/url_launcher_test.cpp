#include "about/url_launcher.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/memory/memory_desktop.h"

namespace zelvane::about {
namespace {

using platform::MessageIcon;
using Started = std::vector<platform::MemoryPrograms::Started>;

constexpr auto kAddress = "https://www.zelvane.example/";
constexpr auto kFile = "/tmp/temphtm.htm";
constexpr auto kBrowser = "/usr/bin/browser";

class UrlLauncherTest : public testing::Test {
 protected:
  UrlLauncherTest() {
    desktop.fileSystem.addFolder("/tmp");
    desktop.specialFolders.setTemporary("/tmp/");
    desktop.programs.use("htm", kBrowser);
  }

  void open(const std::string& address = kAddress) {
    GenFunc::OpenURL(desktop.ports(), address, "htm");
  }

  // Where executables have a suffix; what was started for such an association.
  std::string startedFor(const std::string& program) {
    desktop.programs.haveSuffix = true;
    desktop.programs.use("htm", program);
    open();
    return desktop.programs.started().back().program;
  }

  void expectOneBox(const std::string& text, MessageIcon icon, const std::string& title) const {
    ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
    EXPECT_EQ(desktop.dialogs.boxes()[0].text, text);
    EXPECT_EQ(desktop.dialogs.boxes()[0].icon, icon);
    EXPECT_EQ(desktop.dialogs.boxes()[0].title, title);
  }

  platform::MemoryDesktop desktop;
};

TEST_F(UrlLauncherTest, TheProgramOfTheTypeIsStartedWithTheAddressWithoutAWord) {
  open();

  EXPECT_EQ(desktop.programs.started(), (Started{{kBrowser, kAddress}}));
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(UrlLauncherTest, TheProgramIsAskedForAFileThatHoldsOneEmptyQuotedText) {
  std::string asked;
  std::string content;
  desktop.programs.whileAsked([&](const std::string& file) {
    asked = file;
    content = desktop.fileSystem.content(file).value_or("none");
  });

  open();

  EXPECT_EQ(asked, kFile);
  EXPECT_EQ(content, "\"\"\r\n");
}

TEST_F(UrlLauncherTest, AnotherTypeIsAnotherFile) {
  desktop.programs.use("txt", "/usr/bin/editor");

  GenFunc::OpenURL(desktop.ports(), kAddress, "txt");

  EXPECT_EQ(desktop.programs.started(), (Started{{"/usr/bin/editor", kAddress}}));
}

TEST_F(UrlLauncherTest, AnAddressIsPassedAsItIs) {
  const std::vector<std::string> addresses{"",
                                           "a b",
                                           "say \"hi\"",
                                           "\"",
                                           "--help",
                                           "a\nb\r\n",
                                           "$(x) `y` %z% ;&|",
                                           "ö.ä/",
                                           std::string(65'536, 'a')};

  for (const std::string& address : addresses) {
    open(address);

    EXPECT_EQ(desktop.programs.started().back().argument, address);
  }
}

TEST_F(UrlLauncherTest, WithoutATemporaryFolderItSaysSoAndStops) {
  desktop.specialFolders.setTemporary("");

  open();

  expectOneBox("Can not create file.", MessageIcon::information, "OpenWith");
  EXPECT_TRUE(desktop.programs.started().empty());
}

TEST_F(UrlLauncherTest, ATemporaryFolderOf255CharactersIsUsed) {
  const std::string folder = "/" + std::string(253, 'x') + "/";
  desktop.fileSystem.addFolder(folder);
  desktop.specialFolders.setTemporary(folder);

  open();

  EXPECT_EQ(desktop.programs.started(), (Started{{kBrowser, kAddress}}));
}

TEST_F(UrlLauncherTest, ATemporaryFolderThatDoesNotFitIsNone) {
  const std::string folder = "/" + std::string(254, 'x') + "/";
  desktop.fileSystem.addFolder(folder);
  desktop.specialFolders.setTemporary(folder);

  open();

  expectOneBox("Can not create file.", MessageIcon::information, "OpenWith");
}

TEST_F(UrlLauncherTest, WithoutAProgramItSaysSoAndTheFileIsGone) {
  GenFunc::OpenURL(desktop.ports(), kAddress, "unknown");

  expectOneBox("Could not find associated application", MessageIcon::exclamation,
               "Browser Not Found");
  EXPECT_FALSE(desktop.fileSystem.has("/tmp/temphtm.unknown"));
  EXPECT_TRUE(desktop.programs.started().empty());
}

TEST_F(UrlLauncherTest, AProgramWhosePathDoesNotFitIsNone) {
  desktop.programs.use("htm", "/" + std::string(255, 'x'));

  open();

  expectOneBox("Could not find associated application", MessageIcon::exclamation,
               "Browser Not Found");
  EXPECT_TRUE(desktop.programs.started().empty());
}

TEST_F(UrlLauncherTest, AProgramThatDoesNotStartIsToldAndTheFileIsGone) {
  desktop.programs.uninstall(kBrowser);

  open();

  expectOneBox("Page not Opened", MessageIcon::exclamation, "URL Failed");
  EXPECT_FALSE(desktop.fileSystem.has(kFile));
}

TEST_F(UrlLauncherTest, AfterASuccessTheFileIsGone) {
  open();

  EXPECT_FALSE(desktop.fileSystem.has(kFile));
}

TEST_F(UrlLauncherTest, AFileThatWasThereIsReplacedAndGone) {
  desktop.fileSystem.addFile(kFile, "somebody's");

  open();

  EXPECT_EQ(desktop.programs.started().size(), 1U);
  EXPECT_FALSE(desktop.fileSystem.has(kFile));
}

TEST_F(UrlLauncherTest, ALinkInItsPlaceIsNotFollowed) {
  desktop.fileSystem.addFile("/home/user/letter.htm", "Dear");
  desktop.fileSystem.addLink(kFile, "/home/user/letter.htm");

  open();

  EXPECT_EQ(desktop.fileSystem.content("/home/user/letter.htm"), "Dear");
  EXPECT_EQ(desktop.programs.started().size(), 1U);
  EXPECT_FALSE(desktop.fileSystem.has(kFile));
}

TEST_F(UrlLauncherTest, AFileThatCannotBeWrittenEndsItWithoutAWord) {
  desktop.files.fillDisk();

  open();

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
  EXPECT_TRUE(desktop.programs.started().empty());
  EXPECT_FALSE(desktop.fileSystem.has(kFile));
}

TEST_F(UrlLauncherTest, AFolderInItsPlaceEndsItWithoutAWord) {
  desktop.fileSystem.addFolder(kFile);

  open();

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
  EXPECT_TRUE(desktop.programs.started().empty());
}

TEST_F(UrlLauncherTest, AFileThatSomebodyDeletedMeanwhileHindersNothing) {
  desktop.programs.whileAsked([this](const std::string& file) { desktop.fileSystem.vanish(file); });

  open();

  EXPECT_EQ(desktop.programs.started().size(), 1U);
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(UrlLauncherTest, BlanksAroundTheProgramDoNotCount) {
  desktop.programs.use("htm", "  /usr/bin/my browser ");

  open();

  EXPECT_EQ(desktop.programs.started().back().program, "/usr/bin/my browser");
}

TEST_F(UrlLauncherTest, WithoutSuffixesAProgramIsTakenWhole) {
  desktop.programs.use("htm", "/opt/some.exe.d/browser");

  open();

  EXPECT_EQ(desktop.programs.started().back().program, "/opt/some.exe.d/browser");
}

TEST_F(UrlLauncherTest, WithSuffixesTheProgramEndsBehindTheFirstOne) {
  EXPECT_EQ(startedFor("C:\\Net\\browser.exe"), "C:\\Net\\browser.exe");
  EXPECT_EQ(startedFor("C:\\Net\\BROWSER.EXE -nohome"), "C:\\Net\\BROWSER.EXE");
  EXPECT_EQ(startedFor("C:\\Net\\browser.Exe -osint -url \"%1\""), "C:\\Net\\browser.Exe");
  EXPECT_EQ(startedFor("C:\\Net\\a.exe.d\\browser.exe"), "C:\\Net\\a.exe");
}

// A leading quote is part of what was found, and is not looked at.
TEST_F(UrlLauncherTest, AQuotedProgramLosesWhatFollowsItsSuffix) {
  EXPECT_EQ(startedFor("\"C:\\My Net\\browser.exe\" -nohome"), "\"C:\\My Net\\browser.exe");
}

TEST_F(UrlLauncherTest, AProgramWithoutTheSuffixIsCutToItsFirstThreeCharacters) {
  EXPECT_EQ(startedFor("C:\\Scripts\\browser.vbs"), "C:\\");
  EXPECT_EQ(startedFor("ÄÖÜß"), "ÄÖÜ");
  EXPECT_EQ(startedFor("ab"), "ab");
  EXPECT_EQ(startedFor("a  b"), "a");
  EXPECT_EQ(desktop.programs.started().front().argument, kAddress);
}

}  // namespace
}  // namespace zelvane::about
