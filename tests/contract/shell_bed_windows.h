// The program's window on the screen, with ports in memory.
#pragma once

#include <vector>

#include <windows.h>
#include <gtest/gtest.h>

#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "platform/memory/memory_desktop.h"
#include "ui/win32/main_window.h"

namespace zelvane::test {

// As the program starts: what is not seen first is still to be made.
class Win32StartTest : public testing::Test {
 protected:
  Win32StartTest() { main_window::GenFunc::Main(desktop.ports(), window); }

  // The controls that stand on the pages of the window, and those around the pages.
  std::vector<controls::Control*> controlsWithAFace() {
    std::vector<controls::Control*> all{&window.mainPage.tabMain, &window.mainPage.lblStatus};
    for (const auto& page : window.tabPages()) {
      all.insert(all.end(), page.begin(), page.end());
    }
    return all;
  }

  HWND handleOf(const controls::Control& control) const {
    const win32::Window* found = win32::Window::find(shell.handle(), control.name());
    return found == nullptr ? nullptr : found->handle();
  }

  std::vector<HWND> allWindows() const {
    std::vector<HWND> windows;
    EnumChildWindows(
        shell.handle(),
        [](HWND child, LPARAM list) -> BOOL {
          reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
  }

  platform::MemoryDesktop desktop;
  main_window::frmMain window{desktop.ports()};
  controls::OpenBoxes boxes;
  win32::Look look;
  win32::MainWindow shell{window, boxes, look};
};

// As the user has it soon after.
class Win32ShellTest : public Win32StartTest {
 protected:
  Win32ShellTest() { shell.finish(); }
};

}  // namespace zelvane::test
