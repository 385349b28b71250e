// One pass over all sixteen options that performs the task of each ticked one.
#pragma once

#include "cleaner/cleaner_page.h"
#include "cleaner/cleaning_tasks.h"
#include "core/controls/button.h"
#include "core/controls/label.h"
#include "core/controls/tab_strip.h"
#include "core/controls/timer.h"
#include "core/handler.h"
#include "platform/desktop.h"

namespace zelvane::cleaner {

// What a run touches outside the cleaner: the schedule's controls and the window's.
struct RunSurroundings {
  const controls::Button& cmdApply;
  const controls::Button& cmdCancel;
  controls::Label& lblLastRunTime;
  controls::Timer& tmrSchedule;
  controls::Timer& tmrMakeScehduleEnable;
  controls::TabStrip& tabMain;
  controls::Label& lblStatus;
};

// The state of a run lives on its stack: waiting events are delivered between its steps, so that
// one run may start inside another, and the program may be ended in the middle of one.
class CleaningRun {
 public:
  CleaningRun(CleanerPage& page, const RunSurroundings& around, const platform::Desktop& desktop,
              const core::Handler& handler);

  // The run. Refused without a word while the schedule holds edits that were neither applied nor
  // cancelled. The scheduler calls it too.
  void cmdBasicClean_Click();

  // Both run every ticked option, not only those of their own page.
  void Command2_Click();
  void Command3_Click();

 private:
  void begin();
  void performTickedTasks();
  void finish();
  void tellWhatIsLeft();

  CleanerPage& page_;
  RunSurroundings around_;
  platform::Desktop desktop_;
  core::Handler handler_;
  CleaningTasks tasks_;
};

}  // namespace zelvane::cleaner
