// The program's window, used from outside as its user would use it.
#pragma once

#include <initializer_list>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include <windows.h>

#include "tests/desktop/windows/remote_control.h"
#include "tests/desktop/windows/remote_log.h"

namespace zelvane::test {

// In the order of the window's tabs.
enum class TabPage { main, cleanInternet, cleanComputer, popupKiller, fileSecurity, schedule };

// The options that a cleaning goes by, by the indices under which they are stored.
enum class Option {
  guardHomePage = 0,
  indexDat = 1,
  siteAddresses = 2,
  recentFiles = 3,
  myDocuments = 4,
  recycleBin = 5,
  browserCache = 6,
  cookies = 7,
  favorites = 8,
  history = 9,
  freeSpace = 10,
  temporaryFiles = 11,
  clipboard = 12,
  runHistory = 13,
  scriptDebugging = 14,
  scriptErrors = 15,
};

class ProgramWindow {
 public:
  // `process` is borrowed.
  ProgramWindow(HANDLE process, HWND window);

  HWND window() const { return window_; }
  std::string title() const { return textOfWindow(window_); }
  std::string status() const { return control("lblStatus").text(); }
  // Throws where the window is gone.
  bool isMinimised() const;

  // The control of that name, also on a page that is not in front. Throws where there is none.
  RemoteControl control(const std::string& name) const;
  RemoteControl option(Option option) const;

  TabPage page() const;
  void turnTo(TabPage page) const;

  // Turns to the pages in question.
  void tick(Option option, bool ticked = true) const;
  void tickOnly(std::initializer_list<Option> options) const;
  std::vector<Option> ticked() const;

  // Presses "Clean Computer and Internet", waits for the end of the run, and returns its account.
  std::vector<LogLine> clean() const;
  std::vector<LogLine> log() const;

  void pressExit() const;

 private:
  HANDLE process_;
  HWND window_;
  std::map<std::string, HWND> controls_;  // by their names
};

// For what a test prints.
void PrintTo(Option option, std::ostream* out);

}  // namespace zelvane::test
