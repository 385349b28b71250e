// How the program goes, and how it does not.
#include <cstdlib>
#include <string>

#include <windows.h>

#include "platform/windows/whole_file.h"
#include "tests/desktop/windows/desktop_test.h"
#include "tests/desktop/windows/waiting.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

class Ending : public DesktopTest {
 protected:
  static std::optional<std::string> startupEntry() {
    return userText(ThrowAwayWorld::kRun, "Zelvane");
  }

  std::optional<std::string> ledger() const {
    return platform::readWholeFile(world.roaming() + R"(\Zelvane\ledger.txt)");
  }
};

TEST_F(Ending, TheCloseBoxMinimisesAndTheProgramLives) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tick(Option::clipboard);

  PostMessageW(window.window(), WM_CLOSE, 0, 0);
  waitUntil("the window is minimised", [&] { return window.isMinimised(); });

  EXPECT_TRUE(program.isRunning());
  EXPECT_EQ(storedText("Options", "StartUp"), std::nullopt);
  EXPECT_EQ(window.status(), "Ready");
}

TEST_F(Ending, AMinimisedWindowComesBackAsItWas) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tick(Option::clipboard);
  PostMessageW(window.window(), WM_CLOSE, 0, 0);
  waitUntil("the window is minimised", [&] { return window.isMinimised(); });

  PostMessageW(window.window(), WM_SYSCOMMAND, SC_RESTORE, 0);
  waitUntil("the window is back", [&] { return !window.isMinimised(); });

  EXPECT_EQ(window.page(), TabPage::cleanComputer);
  EXPECT_TRUE(window.option(Option::clipboard).isTicked());
  window.pressExit();
  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
}

TEST_F(Ending, TheExitWritesTheStartupEntryAndNotesIt) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.control("chkStartup").tick();
  EXPECT_EQ(startupEntry(), std::nullopt);

  window.pressExit();

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  ASSERT_TRUE(startupEntry().has_value());
  EXPECT_TRUE(isThere(*startupEntry())) << *startupEntry();
  EXPECT_TRUE(startupEntry()->ends_with(R"(\Zelvane.exe)")) << *startupEntry();
  EXPECT_EQ(ledger(), std::string("Zelvane ledger 1\nvalue HKEY_CURRENT_USER\\") +
                          ThrowAwayWorld::kRun + "\\Zelvane\n");
}

TEST_F(Ending, TheExitWithAnUntickedBoxDeletesTheStartupEntry) {
  storeText("Options", "StartUp", "1");
  setUserText(ThrowAwayWorld::kRun, "Zelvane", "old");
  setUserText(ThrowAwayWorld::kRun, "Other", "theirs");
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.control("chkStartup").tick(false);
  EXPECT_EQ(startupEntry(), "old");

  window.pressExit();

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(startupEntry(), std::nullopt);
  EXPECT_EQ(userText(ThrowAwayWorld::kRun, "Other"), "theirs");
  EXPECT_EQ(storedText("Options", "StartUp"), "0");
}

TEST_F(Ending, KilledItWritesNoStartupEntryAndKeepsTheFormerChoice) {
  storeText("Options", "StartUp", "0");
  const RunningProgram program(world);
  program.window().control("chkStartup").tick();

  program.kill();

  EXPECT_EQ(startupEntry(), std::nullopt);
  EXPECT_EQ(storedText("Options", "StartUp"), "0");
}

// The second program has its window, unseen, when it tells that it may not show it.
TEST_F(Ending, ASecondStartThatTheEndOfTheSessionMeetsStoresNothing) {
  storeText("Options", "StartUp", "1");
  setUserText(ThrowAwayWorld::kRun, "Zelvane", "first's");
  const RunningProgram first(world);
  const ProgramWindow window = first.window();
  const RunningProgram second(world);
  const HWND unseen = second.message().owner();

  PostMessageW(unseen, WM_ENDSESSION, TRUE, 0);

  EXPECT_EQ(second.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(storedText("Options", "StartUp"), "1");
  EXPECT_EQ(startupEntry(), "first's");
}

TEST_F(Ending, TheEndOfTheSessionStoresAndEnds) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.control("chkStartup").tick();

  EXPECT_EQ(askWindow(window.window(), WM_QUERYENDSESSION), TRUE);
  EXPECT_TRUE(program.isRunning());
  EXPECT_EQ(storedText("Options", "StartUp"), std::nullopt);
  PostMessageW(window.window(), WM_ENDSESSION, TRUE, 0);

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(storedText("Options", "StartUp"), "1");
  EXPECT_TRUE(startupEntry().has_value());
}

TEST_F(Ending, ASessionThatGoesOnAfterAllChangesNothing) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.control("chkStartup").tick();
  const auto stored = ThrowAwayWorld::allStored();

  EXPECT_EQ(askWindow(window.window(), WM_QUERYENDSESSION), TRUE);
  askWindow(window.window(), WM_ENDSESSION, FALSE);

  EXPECT_TRUE(program.isRunning());
  EXPECT_FALSE(window.isMinimised());
  EXPECT_EQ(window.status(), "Ready");
  EXPECT_EQ(ThrowAwayWorld::allStored(), stored);
}

TEST_F(Ending, TheEndOfTheSessionReachesAMinimisedWindow) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  PostMessageW(window.window(), WM_CLOSE, 0, 0);
  waitUntil("the window is minimised", [&] { return window.isMinimised(); });

  PostMessageW(window.window(), WM_ENDSESSION, TRUE, 0);

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(storedText("Options", "StartUp"), "0");
}

// A user who takes the window in order to move it halts the run wherever it is.
class EndingInARun : public DesktopTest {
 protected:
  EndingInARun() {
    for (int number = 0; number < kFiles; ++number) {
      makeFile(world.documents() + "\\f" + std::to_string(number % 10) + "\\" +
               std::to_string(number));
    }
    makeFile(world / "outside/letter.txt");
    storeOption(4, "1");
    storeOption(11, "0");
  }

  // The run goes on for as long as the program lets no events in, a hundredth of a second, each
  // time that the window is let go and taken again.
  void startAndHalt(const ProgramWindow& window) const {
    window.control("cmdBasicClean").press();
    do {
      PostMessageW(window.window(), WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0);
      waitUntil("the window is being moved", [&] { return isMoved(window.window()); });
      if (world.files().size() < kFiles) return;
      PostMessageW(window.window(), WM_KEYDOWN, VK_ESCAPE, 0);
    } while (true);
  }

  static bool isMoved(HWND window) {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread) != FALSE &&
           (thread.flags & GUI_INMOVESIZE) != 0;
  }

  static constexpr int kFiles = 800;
};

TEST_F(EndingInARun, AnEndByForceLosesNothingButFilesInTheChosenFolder) {
  {
    const RunningProgram program(world);
    startAndHalt(program.window());
    program.kill();
  }
  EXPECT_FALSE(world.files().empty());
  EXPECT_TRUE(isThere(world / "outside/letter.txt"));

  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  EXPECT_EQ(window.status(), "Ready");
  EXPECT_TRUE(window.option(Option::myDocuments).isTicked());
  EXPECT_EQ(window.clean().back(), (LogLine{"Done", "black"}));
  EXPECT_TRUE(world.files().empty());
  EXPECT_TRUE(isThere(world / "outside/letter.txt"));
}

TEST_F(EndingInARun, TheEndOfTheSessionStoresAndEnds) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  startAndHalt(window);

  PostMessageW(window.window(), WM_ENDSESSION, TRUE, 0);

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(storedText("Options", "StartUp"), "0");
  EXPECT_FALSE(world.files().empty());
}

}  // namespace
}  // namespace zelvane::test
