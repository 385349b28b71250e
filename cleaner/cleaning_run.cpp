#include "cleaner/cleaning_run.h"

#include "cleaner/left_notice.h"
#include "core/text.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/left_traces.h"
#include "platform/notifications.h"
#include "platform/window_commands.h"

namespace zelvane::cleaner {

CleaningRun::CleaningRun(CleanerPage& page, const RunSurroundings& around,
                         const platform::Desktop& desktop, const core::Handler& handler)
    : page_(page),
      around_(around),
      desktop_(desktop),
      handler_(handler),
      tasks_(page.rtfMessage, around.lblStatus, desktop) {
  page_.cmdBasicClean.clicked.connect([this] { cmdBasicClean_Click(); });
  page_.Command2.clicked.connect([this] { Command2_Click(); });
  page_.Command3.clicked.connect([this] { Command3_Click(); });
}

void CleaningRun::cmdBasicClean_Click() {
  handler_([this] {
    const bool scheduleHoldsEdits = around_.cmdApply.enabled() || around_.cmdCancel.enabled();
    if (scheduleHoldsEdits) {
      return;
    }
    begin();
    performTickedTasks();
    finish();
    tellWhatIsLeft();
  });
}

void CleaningRun::Command2_Click() { cmdBasicClean_Click(); }

void CleaningRun::Command3_Click() { cmdBasicClean_Click(); }

void CleaningRun::begin() {
  around_.lblLastRunTime.setCaption(core::timeText(desktop_.clock.now().timeOfDay));
  desktop_.window.bringForward();
  around_.tabMain.setTab(0);
  page_.rtfMessage.clear();
  // No scheduled run may start during this one.
  around_.tmrSchedule.setEnabled(false);
  around_.tmrMakeScehduleEnable.setEnabled(false);
}

void CleaningRun::performTickedTasks() {
  for (std::size_t index = 0; index < kOptionCount; ++index) {
    if (page_.chkSettings[index].checked()) {
      tasks_.perform(kOptions[index]);
    }
    desktop_.window.repaint(page_.rtfMessage.name());
    desktop_.pump.doEvents();
  }
}

void CleaningRun::finish() {
  page_.rtfMessage.setSelectionColour(controls::RichLog::Colour::black);
  page_.rtfMessage.append("\r\nDone");
  around_.lblStatus.setCaption("\r\nDone");
  around_.lblStatus.setCaption("Ready");
  // One second from now it stores the time of this run and arms the schedule again.
  around_.tmrMakeScehduleEnable.setEnabled(true);
}

// The log has its fixed lines. A browser that was open while it was to be cleaned is the one thing
// that its user can do something about.
void CleaningRun::tellWhatIsLeft() {
  const std::vector<platform::LeftTrace> left = desktop_.leftTraces.take();
  if (!left.empty()) {
    core::ignoringErrors([&] { desktop_.notifications.show("Zelvane", noticeOf(left)); });
  }
}

}  // namespace zelvane::cleaner
