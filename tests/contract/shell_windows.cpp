// The window on the screen: every control of frmMain has its one face there.
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "platform/shared/product.h"
#include "platform/windows/wide_text.h"
#include "tests/contract/shell_bed_windows.h"

namespace zelvane::test {
namespace {

using controls::Control;

TEST_F(Win32ShellTest, EachControlWithAFaceHasOneWindowOfItsName) {
  const auto windows = allWindows();
  for (const Control* control : controlsWithAFace()) {
    const auto faces = std::ranges::count_if(windows, [&](HWND handle) {
      const win32::Window* one = win32::Window::of(handle);
      return one != nullptr && one->control() == control;
    });
    EXPECT_EQ(faces, 1) << control->name();
  }
}

TEST_F(Win32ShellTest, EachControlWithAFaceHasANumberOfItsOwn) {
  std::set<int> numbers;
  for (const Control* control : controlsWithAFace()) {
    const int number = GetDlgCtrlID(handleOf(*control));
    EXPECT_GE(number, 1000) << control->name();
    EXPECT_TRUE(numbers.insert(number).second) << control->name();
  }
}

TEST_F(Win32ShellTest, WhatIsDisabledByItsFrameCannotBeUsedOnTheScreen) {
  EXPECT_FALSE(IsWindowEnabled(handleOf(window.fileSecurityPage.cmdEncrypt)));
  EXPECT_FALSE(IsWindowEnabled(handleOf(window.fileSecurityPage.lblFileOrFolder)));
  EXPECT_TRUE(IsWindowEnabled(handleOf(window.cleanerPage.cmdBasicClean)));

  window.fileSecurityPage.fmDravik.setEnabled(true);
  EXPECT_TRUE(IsWindowEnabled(handleOf(window.fileSecurityPage.cmdEncrypt)));
}

TEST_F(Win32ShellTest, TheTabKeyVisitsTheControlsInTheOrderOfTheirPage) {
  for (controls::Frame* frame : {&window.popupPage.Frame1, &window.fileSecurityPage.fmDravik}) {
    frame->setEnabled(true);
  }
  int tab = 0;
  for (const auto& page : window.tabPages()) {
    window.mainPage.tabMain.setTab(tab++);
    std::vector<HWND> expected{handleOf(window.mainPage.tabMain)};
    for (const Control* control : page) {
      const HWND handle = handleOf(*control);
      const LONG_PTR style = GetWindowLongPtrW(handle, GWL_STYLE);
      if ((style & WS_TABSTOP) != 0 && IsWindowVisible(handle) && IsWindowEnabled(handle)) {
        expected.push_back(handle);
      }
    }

    std::vector<HWND> visited;
    HWND at = expected.front();
    do {
      visited.push_back(at);
      at = GetNextDlgTabItem(shell.handle(), at, FALSE);
    } while (at != expected.front() && visited.size() < 100);

    EXPECT_EQ(visited, expected) << "page " << tab - 1;
  }
}

TEST_F(Win32ShellTest, ALabelStandsRightBeforeTheControlThatItNames) {
  for (const controls::Page* page : window.pages()) {
    for (const Control* control : page->controls()) {
      const auto* label = dynamic_cast<const controls::Label*>(control);
      if (label != nullptr && label->buddy() != nullptr) {
        EXPECT_EQ(GetWindow(handleOf(*label), GW_HWNDNEXT), handleOf(*label->buddy()))
            << label->name();
      }
    }
  }
}

TEST_F(Win32ShellTest, PressingTheButtonOnTheScreenRunsTheCleaner) {
  SendMessageW(handleOf(window.cleanerPage.cmdBasicClean), BM_CLICK, 0, 0);

  EXPECT_TRUE(window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
}

TEST_F(Win32ShellTest, TheCloseBoxHidesAndTheProgramLives) {
  SendMessageW(shell.handle(), WM_CLOSE, 0, 0);

  EXPECT_FALSE(IsWindowVisible(shell.handle()));
  EXPECT_FALSE(window.mainPage.form.visible());
  EXPECT_FALSE(desktop.process.ended());
}

TEST_F(Win32ShellTest, AHiddenWindowComesBackNormal) {
  SendMessageW(shell.handle(), WM_CLOSE, 0, 0);

  desktop.tray.use(platform::Tray::kLeftDoubleClicked);

  EXPECT_TRUE(IsWindowVisible(shell.handle()));
  EXPECT_FALSE(IsIconic(shell.handle()));
  EXPECT_EQ(window.mainPage.form.state(), controls::Form::State::normal);
}

TEST_F(Win32ShellTest, AHiddenWindowWhoseIconIsLostIsShownMinimised) {
  SendMessageW(shell.handle(), WM_CLOSE, 0, 0);

  desktop.tray.takePlaceAway();

  EXPECT_TRUE(IsWindowVisible(shell.handle()));
  EXPECT_TRUE(IsIconic(shell.handle()));
}

TEST_F(Win32ShellTest, WithoutAPlaceForTheIconTheCloseBoxMinimisesAndTheProgramLives) {
  desktop.tray.takePlaceAway();

  SendMessageW(shell.handle(), WM_CLOSE, 0, 0);

  EXPECT_EQ(window.mainPage.form.state(), controls::Form::State::minimised);
  EXPECT_TRUE(window.mainPage.form.visible());
  EXPECT_TRUE(IsIconic(shell.handle()));
  EXPECT_FALSE(desktop.process.ended());
}

TEST_F(Win32ShellTest, AMinimisedWindowThatTheUserRestoresIsNormalAgain) {
  window.mainPage.form.setState(controls::Form::State::minimised);
  EXPECT_TRUE(IsIconic(shell.handle()));

  ShowWindow(shell.handle(), SW_RESTORE);

  EXPECT_EQ(window.mainPage.form.state(), controls::Form::State::normal);
}

TEST_F(Win32ShellTest, ThePageInFrontFollowsBothWays) {
  const HWND tabs = handleOf(window.mainPage.tabMain);

  window.mainPage.tabMain.setTab(2);
  EXPECT_EQ(TabCtrl_GetCurSel(tabs), 2);
  EXPECT_TRUE(IsWindowVisible(handleOf(window.cleanerPage.Command3)));
  EXPECT_FALSE(IsWindowVisible(handleOf(window.cleanerPage.Command2)));

  TabCtrl_SetCurFocus(tabs, 1);
  EXPECT_EQ(window.mainPage.tabMain.tab(), 1);
}

TEST_F(Win32ShellTest, NoCaptionIsCutAndNothingLiesOutsideItsPage) {
  for (const Control* control : controlsWithAFace()) {
    const win32::Window* face = win32::Window::of(handleOf(*control));
    RECT place{};
    GetWindowRect(face->handle(), &place);
    const win32::Size natural = face->natural();
    RECT around{};
    GetWindowRect(GetParent(face->handle()), &around);

    EXPECT_GE(place.right - place.left, natural.width * (face->isShown() ? 1 : 0))
        << control->name();
    EXPECT_GE(place.bottom - place.top, natural.height * (face->isShown() ? 1 : 0))
        << control->name();
    EXPECT_GE(place.left, around.left) << control->name();
    EXPECT_LE(place.right, around.right) << control->name();
  }
}

TEST_F(Win32ShellTest, ThePagesFitTheWindowWithoutScrolling) {
  EXPECT_EQ(shell.text(), L"Zelvane v1.0");
  for (const HWND handle : allWindows()) {
    const bool isPage = GetParent(handle) == shell.handle() &&
                        dynamic_cast<win32::Pane*>(win32::Window::of(handle)) != nullptr;
    const bool scrolls = (GetWindowLongPtrW(handle, GWL_STYLE) & WS_VSCROLL) != 0;
    EXPECT_FALSE(isPage && scrolls);
  }
}

// Where its page is too low, the keys bring a control into view.
TEST_F(Win32ShellTest, InALowWindowThePageScrollsToTheControlThatHasTheKeys) {
  RECT place{};
  GetWindowRect(shell.handle(), &place);
  SetWindowPos(shell.handle(), nullptr, 0, 0, place.right - place.left, 300,
               SWP_NOMOVE | SWP_NOZORDER);
  const HWND exitButton = handleOf(window.mainPage.cmdClose);

  SetFocus(exitButton);

  RECT button{};
  RECT page{};
  GetWindowRect(exitButton, &button);
  GetWindowRect(GetParent(exitButton), &page);
  EXPECT_GE(button.top, page.top);
  EXPECT_LE(button.bottom, page.bottom);
}

// What the file says of itself, and what the program does.
TEST(Win32VersionRecord, IsTheProductsOwn) {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::vector<char> record(GetFileVersionInfoSizeW(path, nullptr));
  ASSERT_TRUE(GetFileVersionInfoW(path, 0, static_cast<DWORD>(record.size()), record.data()));
  const auto value = [&](const std::wstring& name) {
    void* text = nullptr;
    UINT length = 0;
    VerQueryValueW(record.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &text, &length);
    return text == nullptr ? std::string() : platform::plainText(static_cast<const wchar_t*>(text));
  };
  const platform::VersionRecord product = platform::product();

  EXPECT_EQ(value(L"ProductName"), product.productName);
  EXPECT_EQ(value(L"CompanyName"), product.companyName);
  EXPECT_EQ(value(L"LegalCopyright"), product.legalText);
  EXPECT_EQ(value(L"Comments"), product.makerAddress);
  EXPECT_EQ(value(L"ProductVersion"),
            std::to_string(product.major) + "." + std::to_string(product.minor));
}

}  // namespace
}  // namespace zelvane::test
