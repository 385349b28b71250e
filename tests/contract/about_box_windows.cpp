// The About box on the screen.
#include <string>

#include <windows.h>
#include <gtest/gtest.h>

#include "platform/windows/wide_text.h"
#include "tests/contract/shell_bed_windows.h"
#include "ui/win32/message_loop.h"

namespace zelvane::test {
namespace {

class Win32AboutBoxTest : public Win32ShellTest {
 protected:
  Win32AboutBoxTest() { window.trayMenu.mnuAbout.click(); }

  HWND box() const { return shell.aboutBox().handle(); }

  HWND inBox(const std::string& name) const { return win32::Window::find(box(), name)->handle(); }

  bool isOpen() const {
    return IsWindowVisible(box()) != FALSE && window.aboutPage.frmAbout.visible() && boxes.any() &&
           IsWindowEnabled(shell.handle()) == FALSE;
  }

  bool isClosed() const {
    return IsWindowVisible(box()) == FALSE && !window.aboutPage.frmAbout.visible() &&
           !boxes.any() && IsWindowEnabled(shell.handle()) != FALSE;
  }

  void press(WPARAM key) const {
    MSG message{};
    message.hwnd = inBox("cmdOK");
    message.message = WM_KEYDOWN;
    message.wParam = key;
    win32::deliver(message);
  }
};

TEST_F(Win32AboutBoxTest, TheMenuItemOpensItWithCaptionAndNotice) {
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(win32::Window::of(box())->text(), L"About Zelvane v1.0");
  const std::string notice = platform::plainText(win32::Window::of(inBox("lblCopyRight"))->text());
  EXPECT_TRUE(notice.ends_with("\r\nAll rights reserved. Copyright 2026 Zelvane")) << notice;
}

TEST_F(Win32AboutBoxTest, TheNoticeIsSeenWhole) {
  const win32::Window& notice = *win32::Window::of(inBox("lblCopyRight"));
  RECT place{};
  GetClientRect(notice.handle(), &place);
  RECT around{};
  GetClientRect(box(), &around);

  EXPECT_GE(place.right, notice.natural().width);
  EXPECT_GE(place.bottom, notice.natural().height);
  EXPECT_GT(around.right, place.right);
}

TEST_F(Win32AboutBoxTest, ItStandsBeforeTheWindow) {
  EXPECT_EQ(GetWindow(box(), GW_OWNER), shell.handle());
}

TEST_F(Win32AboutBoxTest, ItsButtonClosesItAndTheWindowCanBeUsedAgain) {
  SendMessageW(inBox("cmdOK"), BM_CLICK, 0, 0);

  EXPECT_TRUE(isClosed());
}

TEST_F(Win32AboutBoxTest, TheReturnKeyPressesItsButtonAndTheEscapeKeyClosesIt) {
  for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
    window.trayMenu.mnuAbout.click();
    EXPECT_TRUE(isOpen());

    press(key);

    EXPECT_TRUE(isClosed());
  }
}

TEST_F(Win32AboutBoxTest, ItsCloseBoxClosesIt) {
  SendMessageW(box(), WM_CLOSE, 0, 0);

  EXPECT_TRUE(isClosed());
}

TEST_F(Win32AboutBoxTest, TheWindowStaysBlockedWhateverChangesInItMeanwhile) {
  window.mainPage.form.setCaption("another");

  EXPECT_TRUE(isOpen());
}

TEST_F(Win32AboutBoxTest, WithTheWindowOutOfSightItOpensByItself) {
  window.aboutPage.cmdOK.click();
  window.mainPage.form.setState(controls::Form::State::minimised);

  window.trayMenu.mnuAbout.click();

  EXPECT_TRUE(isOpen());
  EXPECT_EQ(GetWindow(box(), GW_OWNER), nullptr);
}

TEST_F(Win32AboutBoxTest, TheProgramCanBeEndedMeanwhile) {
  EXPECT_THROW(window.mainPage.form.unload(controls::UnloadMode::windows), platform::ProcessEnded);

  EXPECT_TRUE(desktop.process.ended());
}

}  // namespace
}  // namespace zelvane::test
