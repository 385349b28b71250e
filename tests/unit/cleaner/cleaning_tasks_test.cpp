#include "cleaner/cleaning_tasks.h"

#include <ostream>
#include <vector>

#include "platform/registry.h"
#include "tests/unit/cleaner/cleaner_test.h"

namespace zelvane::cleaner {
namespace {

using controls::RichLog;
using platform::SpecialFolder;
using Root = platform::Registry::Root;

constexpr auto kTypedUrls = R"(Software\Microsoft\Internet Explorer\TypedURLs)";
constexpr auto kRunMru = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)";
constexpr auto kMain = R"(Software\Microsoft\Internet Explorer\Main)";

class CleaningTasksTest : public CleanerTest {
 protected:
  void place(SpecialFolder folder, const std::string& path) {
    desktop.specialFolders.set(folder, path);
    desktop.fileSystem.addFile(path + "/trace");
  }

  // The log of a run with this one option ticked, without the run's own last line.
  std::vector<RichLog::Run> linesOf(std::size_t option) {
    tick(option);
    page.cmdBasicClean.click();
    auto runs = page.rtfMessage.runs();
    runs.pop_back();
    return runs;
  }

  static std::vector<RichLog::Run> threeLines(const std::string& path, const std::string& caption) {
    return {{"\r\nPath: " + path, RichLog::Colour::blue},
            {"\r\n" + caption + " ...", RichLog::Colour::blue},
            {"\r\nFinished " + caption, RichLog::Colour::green}};
  }
};

struct FolderTask {
  std::size_t option;
  SpecialFolder folder;
  std::string caption;

  friend void PrintTo(const FolderTask& task, std::ostream* out) { *out << task.caption; }
};

class FolderTaskTest : public CleaningTasksTest, public testing::WithParamInterface<FolderTask> {};

TEST_P(FolderTaskTest, ErasesItsFolderAndLeavesThreeLinesInTheirColours) {
  place(GetParam().folder, "/home/user/place");

  EXPECT_EQ(linesOf(GetParam().option), threeLines("/home/user/place", GetParam().caption));

  EXPECT_FALSE(desktop.fileSystem.has("/home/user/place/trace"));
  EXPECT_TRUE(desktop.fileSystem.has("/home/user/place"));
}

TEST_P(FolderTaskTest, WithoutAFolderStillLeavesThreeLinesAndErasesNothing) {
  desktop.fileSystem.addFile("/somewhere/else");

  EXPECT_EQ(linesOf(GetParam().option), threeLines("", GetParam().caption));

  EXPECT_TRUE(desktop.fileSystem.deleted().empty());
}

TEST_P(FolderTaskTest, AFolderThatCannotBeOpenedStillLeavesThreeLines) {
  desktop.specialFolders.set(GetParam().folder, "/home/user/place");
  desktop.fileSystem.addFolder("/home/user/place", {.unreadable = true});

  EXPECT_EQ(linesOf(GetParam().option), threeLines("/home/user/place", GetParam().caption));
}

INSTANTIATE_TEST_SUITE_P(
    EachFolder, FolderTaskTest,
    testing::Values(FolderTask{9, SpecialFolder::history, "Erasing Internet History"},
                    FolderTask{6, SpecialFolder::internetCache, "Erasing Internet Cashe"},
                    FolderTask{7, SpecialFolder::cookies, "Erasing Browser Cookies"},
                    FolderTask{8, SpecialFolder::favorites, "Erasing Browser Favorites"},
                    FolderTask{3, SpecialFolder::recent, "Erasing Recent Files"},
                    FolderTask{4, SpecialFolder::personal, "Erasing My Documents Files"}),
    [](const auto& task) { return "Option" + std::to_string(task.param.option); });

TEST_F(CleaningTasksTest, TheTemporaryFolderIsErasedUnderItsPathWithTheClosingSeparator) {
  desktop.specialFolders.setTemporary("/var/scratch");
  desktop.fileSystem.addFile("/var/scratch/deep/er/trace");

  EXPECT_EQ(linesOf(11), threeLines("/var/scratch/", "Erasing Windows Temporary Files"));

  EXPECT_FALSE(desktop.fileSystem.has("/var/scratch/deep"));
  EXPECT_TRUE(desktop.fileSystem.has("/var/scratch"));
}

TEST_F(CleaningTasksTest, OnlyHistoryCacheAndTemporaryTasksSetTheStatus) {
  std::vector<std::string> captions;
  around.lblStatus.changed.connect([&] { captions.push_back(around.lblStatus.caption()); });
  for (std::size_t option = 0; option < kOptionCount; ++option) {
    tick(option);
  }

  page.cmdBasicClean.click();

  EXPECT_EQ(captions,
            (std::vector<std::string>{"Erasing Internet Cashe ...", "Erasing Internet History ...",
                                      "Erasing Windows Temporary Files ...", "\r\nDone", "Ready"}));
}

TEST_F(CleaningTasksTest, APathOf255CharactersIsNoPathRatherThanACutOne) {
  const std::string longest = "/" + std::string(253, 'x');
  place(SpecialFolder::personal, longest);
  EXPECT_EQ(linesOf(4), threeLines(longest, "Erasing My Documents Files"));

  desktop.fileSystem.forgetDeleted();
  place(SpecialFolder::personal, longest + "x");
  EXPECT_EQ(linesOf(4), threeLines("", "Erasing My Documents Files"));
  EXPECT_TRUE(desktop.fileSystem.deleted().empty());
}

TEST_F(CleaningTasksTest, ThePathIsMeasuredInCharactersAndNotInBytes) {
  std::string path = "/";
  for (int i = 0; i < 200; ++i) {
    path += "ü";
  }
  place(SpecialFolder::personal, path);

  EXPECT_EQ(linesOf(4), threeLines(path, "Erasing My Documents Files"));
}

TEST_F(CleaningTasksTest, TheRecycleBinTaskLogsTheRecentDocumentsAndDoesNotTouchThem) {
  place(SpecialFolder::recent, "/home/user/Recent");
  desktop.recycleBin.put({.name = "old letter", .bytes = 10});

  EXPECT_EQ(linesOf(5), threeLines("/home/user/Recent", "Erasing Contents of Recycle Bin"));

  EXPECT_TRUE(desktop.recycleBin.items().empty());
  EXPECT_TRUE(desktop.fileSystem.has("/home/user/Recent/trace"));
}

TEST_F(CleaningTasksTest, TheRecycleBinIsEmptiedAlsoWithoutARecentDocumentsFolder) {
  desktop.recycleBin.put({.name = "old letter", .bytes = 10});

  EXPECT_EQ(linesOf(5), threeLines("", "Erasing Contents of Recycle Bin"));

  EXPECT_TRUE(desktop.recycleBin.items().empty());
}

TEST_F(CleaningTasksTest, ARecycleBinThatRefusesIsNotReported) {
  desktop.recycleBin.put({.name = "stubborn", .bytes = 10, .refuses = true});

  EXPECT_EQ(linesOf(5), threeLines("", "Erasing Contents of Recycle Bin"));

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

struct KeyTask {
  std::size_t option;
  std::string path;
  std::string caption;

  friend void PrintTo(const KeyTask& task, std::ostream* out) { *out << task.caption; }
};

class KeyTaskTest : public CleaningTasksTest, public testing::WithParamInterface<KeyTask> {};

TEST_P(KeyTaskTest, DeletesTheKeyWithItsValuesAndDoesNotMakeItAgain) {
  const auto& [option, path, caption] = GetParam();
  desktop.registry.put(Root::currentUser, path, "url1", "https://a.example/");

  EXPECT_EQ(linesOf(option), threeLines(R"(HKEY_CURRENT_USER\)" + path, caption));

  EXPECT_FALSE(desktop.registry.hasKey(Root::currentUser, path));
}

TEST_P(KeyTaskTest, WithoutTheKeyStillLeavesThreeLines) {
  const auto& [option, path, caption] = GetParam();

  EXPECT_EQ(linesOf(option), threeLines(R"(HKEY_CURRENT_USER\)" + path, caption));

  EXPECT_FALSE(desktop.registry.hasKey(Root::currentUser, path));
}

TEST_P(KeyTaskTest, AKeyWithKeysBelowItStaysAndIsNotReported) {
  const auto& [option, path, caption] = GetParam();
  desktop.registry.addKey(Root::currentUser, path + R"(\below)");

  EXPECT_EQ(linesOf(option), threeLines(R"(HKEY_CURRENT_USER\)" + path, caption));

  EXPECT_TRUE(desktop.registry.hasKey(Root::currentUser, path));
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_P(KeyTaskTest, TheHandleOfTheKeyIsLeftOpen) {
  const auto& [option, path, caption] = GetParam();
  desktop.registry.addKey(Root::currentUser, path);

  linesOf(option);

  EXPECT_EQ(desktop.registry.openKeys(), std::vector<std::string>{path});
}

INSTANTIATE_TEST_SUITE_P(
    EachKey, KeyTaskTest,
    testing::Values(KeyTask{2, kTypedUrls, "Erasing 'Auto Complete' Site Addresses"},
                    KeyTask{13, kRunMru, "Erasing Windows Start Run History"}),
    [](const auto& task) { return "Option" + std::to_string(task.param.option); });

TEST_F(CleaningTasksTest, TheClipboardIsEmptiedInSilence) {
  desktop.clipboard.content = "a password";

  EXPECT_TRUE(linesOf(12).empty());

  EXPECT_EQ(desktop.clipboard.content, "");
}

TEST_F(CleaningTasksTest, TheScriptOptionsWriteBothValuesInSilence) {
  tick(14);

  EXPECT_TRUE(linesOf(15).empty());

  EXPECT_EQ(desktop.registry.text(Root::currentUser, kMain, "Disable Script Debugger"), "yes");
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kMain, "Disable Script DebuggerX"), "yes");
}

TEST_F(CleaningTasksTest, TheScriptOptionsNeverCreateTheBrowsersKey) {
  desktop.registry.deleteKey(Root::currentUser, kMain);
  tick(14);

  linesOf(15);

  EXPECT_FALSE(desktop.registry.hasKey(Root::currentUser, kMain));
}

TEST_F(CleaningTasksTest, ASilentTaskChangesNoColour) {
  tick(5);
  tick(12);
  std::vector<RichLog::Colour> colours;
  desktop.pump.postIn(13, [&] { colours.push_back(page.rtfMessage.selectionColour()); });

  page.cmdBasicClean.click();

  EXPECT_EQ(colours, std::vector{RichLog::Colour::green});
}

}  // namespace
}  // namespace zelvane::cleaner
