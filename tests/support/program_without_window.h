// One run of the program without a window, from its start to its exit.
#pragma once

#include <string>
#include <vector>

#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "platform/memory/memory_process_end.h"

namespace zelvane::test {

// `Desktop` has `ports()`, and in memory what the user sees: `dialogs` and `process`.
template <typename Desktop>
class ProgramWithoutWindow {
 public:
  // The place is what the desktop lies in. It outlives this, and outlasts it for the next run.
  template <typename Place>
  explicit ProgramWithoutWindow(const Place& place) : desktop(place) {}

  Desktop desktop;
  main_window::frmMain window{desktop.ports()};

  // What a user does.
  void start() { main_window::GenFunc::Main(desktop.ports(), window); }
  void clickOption(std::size_t index) { window.cleanerPage.chkSettings[index].click(); }
  void clean() {
    window.cleanerPage.cmdBasicClean.click();
    window.schedulePage.tmrMakeScehduleEnable.tick();  // a second later
  }
  void exit() {
    try {
      window.mainPage.cmdClose.click();
    } catch (const platform::ProcessEnded&) {
      // The test goes on.
    }
  }

  // What the user sees: the texts of all boxes so far, the status line, the account of the latest
  // run.
  std::vector<std::string> told() const {
    std::vector<std::string> texts;
    for (const auto& box : desktop.dialogs.boxes()) texts.push_back(box.text);
    return texts;
  }
  const std::string& status() const { return window.mainPage.lblStatus.caption(); }
  std::string account() const { return window.cleanerPage.rtfMessage.text(); }
  bool hasEnded() const { return desktop.process.ended(); }
};

}  // namespace zelvane::test
