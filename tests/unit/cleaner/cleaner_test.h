// The cleaner on a desktop in memory, without any window.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "cleaner/cleaner_page.h"
#include "cleaner/cleaning_run.h"
#include "core/controls/button.h"
#include "core/controls/label.h"
#include "core/controls/tab_strip.h"
#include "core/controls/timer.h"
#include "core/handler.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::cleaner {

class CleanerTest : public testing::Test {
 protected:
  // What a run finds around the cleaner: an applied schedule, its timers, and the window.
  struct Around : controls::Page {
    Around() {
      cmdApply.setEnabled(false);
      cmdCancel.setEnabled(false);
    }

    controls::Button cmdApply{*this, "cmdApply", "&Apply"};
    controls::Button cmdCancel{*this, "cmdCancel", "Cancel"};
    controls::Label lblLastRunTime{*this, "lblLastRunTime", "##:##:##"};
    controls::Timer tmrSchedule{*this, "tmrSchedule", std::chrono::milliseconds(10), true};
    controls::Timer tmrMakeScehduleEnable{*this, "tmrMakeScehduleEnable",
                                          std::chrono::milliseconds(1000), false};
    controls::TabStrip tabMain{*this, "tabMain", {"Main", "Clean Internet", "Clean Computer"}};
    controls::Label lblStatus{*this, "lblStatus", "Ready"};
  };

  void tick(std::size_t option) { page.chkSettings[option].setValue(1); }

  std::string log() const { return page.rtfMessage.text(); }

  platform::MemoryDesktop desktop;
  core::Handler handler{desktop.dialogs, desktop.identity};
  CleanerPage page;
  Around around;
  CleaningRun run{page,
                  {around.cmdApply, around.cmdCancel, around.lblLastRunTime, around.tmrSchedule,
                   around.tmrMakeScehduleEnable, around.tabMain, around.lblStatus},
                  desktop.ports(),
                  handler};
};

}  // namespace zelvane::cleaner
