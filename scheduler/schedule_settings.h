// How the controls of the "Schedule" page are edited, applied, cancelled and loaded.
#pragma once

#include <string>

#include "core/handler.h"
#include "core/settings_store.h"
#include "platform/desktop.h"
#include "scheduler/schedule_page.h"

namespace zelvane::scheduler {

// The page is applied (`cmdApply` and `cmdCancel` disabled) or edited (both enabled). Every edit
// makes it edited, also one that the program makes; `markApplied` makes it applied. An edited
// schedule is in force like an applied one, but no run starts, by hand or by itself.
class ScheduleSettings {
 public:
  ScheduleSettings(SchedulePage& page, core::SettingsStore& settings,
                   const platform::Desktop& desktop, const core::Handler& handler);

  // The pickers show the present date and time and hold none. The page is applied then: should the
  // start come to nothing before `load`, no edits may be left that refuse every run.
  void emptyPickers();

  // Shows what is stored, or "Daily" where no schedule was ever applied. It leaves the page edited.
  // A number or a text that cannot be understood throws; what comes after it is not loaded, and
  // nothing is stored.
  void load();

  void markApplied();

  // The kind was chosen, by the user or by the program.
  void cmbDays_Click();

  // Edits.
  void dtpScheduleDate_Change();
  void dtpScheduleTime_Change();
  void txtHours_Change();

  // Stores the schedule, if it says all that its kind needs.
  void cmdApply_Click();

  // What is stored comes back.
  void cmdCancel_Click();

  // "Daily"; stored when it is applied.
  void cmdDefaultSchedule_Click();

 private:
  void connect();
  void markEdited();
  void enableHours(bool enabled);
  void enableHoursUnlessTimed();
  void tell(const std::string& text);
  void store();
  std::string stored(const std::string& key, std::string_view absent) const;
  void loadPicker(controls::DatePicker& picker, const std::string& key);

  SchedulePage& page_;
  core::SettingsStore& settings_;
  platform::Desktop desktop_;
  core::Handler handler_;
};

}  // namespace zelvane::scheduler
