#include "scheduler/schedule_page.h"

namespace zelvane::scheduler {

SchedulePage::SchedulePage() {
  for (controls::Control* control : controls()) {
    if (control != &fmSchedule && control != &tmrSchedule && control != &tmrMakeScehduleEnable) {
      control->placeIn(fmSchedule);
    }
  }
  fmSchedule.setDescription(
      "A cleaning starts by itself at this time; without a time, when so many hours have struck "
      "since the last run that day.");
  lblDays.labels(cmbDays);
  lblDate.labels(dtpScheduleDate);
  lblTime.labels(dtpScheduleTime);
  lblRunAfter.labels(txtHours);
  udnHours.setDescription("More or fewer hours.");
  cmdApply.setEnabled(false);
  cmdCancel.setEnabled(false);
}

}  // namespace zelvane::scheduler
