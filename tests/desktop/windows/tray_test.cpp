// The icon in the notification area, and what comes of using it.
#include <cstdlib>

#include <windows.h>
#include <shellapi.h>

#include "tests/desktop/windows/desktop_test.h"
#include "tests/desktop/windows/waiting.h"

namespace zelvane::test {
namespace {

constexpr UINT kIconMessage = WM_APP + 2;  // by which the program is told of the mouse
constexpr UINT kIcon = 1;

class TrayIcon : public DesktopTest {
 protected:
  // As the shell tells the window of the icon.
  static void use(const ProgramWindow& window, LPARAM message) {
    PostMessageW(window.window(), kIconMessage, kIcon, message);
  }

  static void close(const ProgramWindow& window) {
    PostMessageW(window.window(), WM_CLOSE, 0, 0);
    waitUntil("the window is minimised", [&] { return window.isMinimised(); });
  }

  static bool isBack(const ProgramWindow& window) {
    return IsWindowVisible(window.window()) && !window.isMinimised();
  }

  static bool isMenuOpen(const ProgramWindow& window) {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window.window(), nullptr), &thread) != FALSE &&
           (thread.flags & GUI_INMENUMODE) != 0;
  }

  // The menu is worked by its keys, which go to the window that it belongs to.
  static void openMenu(const ProgramWindow& window) {
    use(window, WM_RBUTTONUP);
    waitUntil("the menu is open", [&] { return isMenuOpen(window); });
  }
  static void press(const ProgramWindow& window, WPARAM key) {
    PostMessageW(window.window(), WM_KEYDOWN, key, 0);
  }
};

TEST_F(TrayIcon, ADoubleClickBringsTheWindowBackAsItWas) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.tick(Option::clipboard);
  close(window);

  use(window, WM_LBUTTONDBLCLK);
  waitUntil("the window is back", [&] { return isBack(window); });

  EXPECT_EQ(window.page(), TabPage::cleanComputer);
  EXPECT_TRUE(window.option(Option::clipboard).isTicked());
}

TEST_F(TrayIcon, SingleClicksAndMovesDoNothing) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  close(window);

  for (const LPARAM message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MBUTTONUP}) {
    use(window, message);
  }

  EXPECT_EQ(window.status(), "Ready");  // which is asked after those messages
  EXPECT_TRUE(window.isMinimised());
  EXPECT_FALSE(isMenuOpen(window));
}

TEST_F(TrayIcon, TheMenusFirstItemBringsTheWindowBack) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  close(window);

  openMenu(window);
  press(window, VK_DOWN);
  press(window, VK_RETURN);

  waitUntil("the window is back", [&] { return isBack(window); });
  EXPECT_FALSE(isMenuOpen(window));
}

TEST_F(TrayIcon, TheMenusExitStoresAndEnds) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();
  window.control("chkStartup").tick();
  close(window);

  openMenu(window);
  press(window, VK_UP);
  press(window, VK_RETURN);

  EXPECT_EQ(program.endStatus(), EXIT_SUCCESS);
  EXPECT_EQ(storedText("Options", "StartUp"), "1");
}

TEST_F(TrayIcon, ClosingAndComingBackAgainAndAgainAlwaysWorks) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  for (int time = 0; time < 100; ++time) {
    close(window);
    use(window, WM_LBUTTONDBLCLK);
    waitUntil("the window is back", [&] { return isBack(window); });
  }

  EXPECT_TRUE(program.isRunning());
}

// Of a system that shows a notification area, which one without a screen does not.
class ShownTrayIcon : public TrayIcon {
 protected:
  void SetUp() override {
    NOTIFYICONDATAW probe{};
    probe.cbSize = sizeof probe;
    probe.hWnd = GetDesktopWindow();
    probe.uID = kIcon;
    if (Shell_NotifyIconW(NIM_ADD, &probe) == FALSE) {
      GTEST_SKIP() << "this system has no notification area";
    }
    Shell_NotifyIconW(NIM_DELETE, &probe);
  }
};

TEST_F(ShownTrayIcon, TheCloseBoxHidesTheWindow) {
  const RunningProgram program(world);
  const ProgramWindow window = program.window();

  close(window);

  waitUntil("the window is hidden", [&] { return !IsWindowVisible(window.window()); });
  EXPECT_TRUE(program.isRunning());
}

}  // namespace
}  // namespace zelvane::test
