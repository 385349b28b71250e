// The window's start: what is seen first is there at once, all else soon after, and nobody can tell
// by anything but the time.
#include <string>

#include <windows.h>
#include <gtest/gtest.h>

#include "tests/contract/shell_bed_windows.h"

namespace zelvane::test {
namespace {

using controls::Control;

class Win32StartingTest : public Win32StartTest {
 protected:
  // The face as it is; asking for it by name would make it.
  win32::Window& faceOf(const Control& control) {
    win32::Window* face = nullptr;
    shell.visit([&](win32::Window& one) {
      if (one.control() == &control) face = &one;
    });
    return *face;
  }

  static std::string nameOn(HWND handle) {
    const HANDLE name = GetPropW(handle, L"Zelvane.control");
    char text[64] = "";
    GlobalGetAtomNameA(static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(name)), text, 64);
    return text;
  }

  RECT place() const {
    RECT place{};
    GetWindowRect(shell.handle(), &place);
    return place;
  }

  // As the program's loop, until another program finds the window.
  void runUntilItHasItsName() {
    MSG message;
    while (nameOn(shell.handle()).empty() && GetMessageW(&message, nullptr, 0, 0) > 0) {
      DispatchMessageW(&message);
    }
  }
};

TEST_F(Win32StartingTest, OnlyThePageInFrontIsMadeAtOnce) {
  EXPECT_TRUE(IsWindowVisible(faceOf(window.mainPage.cmdClose).handle()));
  EXPECT_TRUE(faceOf(window.mainPage.tabMain).isMade());
  EXPECT_TRUE(faceOf(window.mainPage.lblStatus).isMade());
  EXPECT_FALSE(faceOf(window.cleanerPage.Command2).isMade());
  EXPECT_FALSE(faceOf(window.schedulePage.cmdApply).isMade());
}

TEST_F(Win32StartingTest, TurningToAPageMakesIt) {
  window.mainPage.tabMain.setTab(1);

  EXPECT_TRUE(IsWindowVisible(faceOf(window.cleanerPage.Command2).handle()));
}

TEST_F(Win32StartingTest, AskingForAControlMakesItsWindow) {
  EXPECT_TRUE(IsWindow(handleOf(window.schedulePage.cmdApply)));
}

TEST_F(Win32StartingTest, WhatChangesBeforeAWindowIsMadeIsSeenOnIt) {
  controls::CheckBox& box = window.cleanerPage.chkSettings[2];
  box.setValue(controls::CheckBox::kGreyed);
  box.setCaption("Another caption");
  window.cleanerPage.Command2.setVisible(false);
  window.cleanerPage.cmdDefaultSettings.setEnabled(false);
  window.fileSecurityPage.txtSource.setText("a text");

  shell.finish();

  EXPECT_EQ(SendMessageW(handleOf(box), BM_GETCHECK, 0, 0), BST_INDETERMINATE);
  EXPECT_EQ(faceOf(box).text(), L"Another caption");
  EXPECT_FALSE(faceOf(window.cleanerPage.Command2).isShown());
  EXPECT_FALSE(IsWindowEnabled(handleOf(window.cleanerPage.cmdDefaultSettings)));
  EXPECT_EQ(faceOf(window.fileSecurityPage.txtSource).text(), L"a text");
}

TEST_F(Win32StartingTest, TheRestIsMadeByItselfAndTheWindowKeepsItsPlace) {
  const RECT before = place();

  runUntilItHasItsName();

  for (const Control* control : controlsWithAFace()) {
    EXPECT_TRUE(faceOf(*control).isMade()) << control->name();
  }
  const RECT after = place();
  EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(Win32StartingTest, WhoFindsTheWindowByItsNameFindsAllControlsByTheirs) {
  runUntilItHasItsName();

  EXPECT_EQ(nameOn(shell.handle()), "frmMain");
  for (const Control* control : controlsWithAFace()) {
    EXPECT_EQ(nameOn(faceOf(*control).handle()), control->name());
  }
}

TEST_F(Win32StartingTest, AWindowThatEndsBeforeAllIsMadeLeavesItsControlsUsable) {
  main_window::frmMain other(desktop.ports());
  win32::Look ownLook;
  { const win32::MainWindow brief(other, boxes, ownLook); }

  other.cleanerPage.Command2.setCaption("Still there");
  other.schedulePage.cmbDays.setListIndex(1);

  EXPECT_EQ(other.cleanerPage.Command2.caption(), "Still there");
}

}  // namespace
}  // namespace zelvane::test
