// The controls of the "Schedule" page, which hold the schedule while the program runs.
#pragma once

#include "core/controls/button.h"
#include "core/controls/combo_box.h"
#include "core/controls/date_picker.h"
#include "core/controls/frame.h"
#include "core/controls/label.h"
#include "core/controls/text_box.h"
#include "core/controls/timer.h"
#include "core/controls/up_down.h"

namespace zelvane::scheduler {

// What stands for the time of the latest run while there was none.
inline constexpr auto kNeverRun = "##:##:##";

struct SchedulePage : controls::Page {
  SchedulePage();

  controls::Frame fmSchedule{*this, "fmSchedule", ""};
  controls::Label lblDays{*this, "lblDays", "Run on:"};
  controls::ComboBox cmbDays{*this,
                             "cmbDays",
                             {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday",
                              "Sunday", "Daily", "Date", "Date & Time", "Never!"}};
  controls::Label lblDate{*this, "lblDate", "Date:"};
  controls::DatePicker dtpScheduleDate{*this, "dtpScheduleDate", controls::DatePicker::Kind::date};
  controls::Label lblTime{*this, "lblTime", "Time:"};
  controls::DatePicker dtpScheduleTime{*this, "dtpScheduleTime", controls::DatePicker::Kind::time};
  controls::Label lblRunAfter{*this, "lblRunAfter", "Run after each:"};
  controls::TextBox txtHours{*this, "txtHours", "2"};
  controls::UpDown udnHours{*this, "udnHours", txtHours, 0, 23};
  controls::Label lblHours{*this, "lblHours", "hrs."};
  controls::Label lblLastRun{*this, "lblLastRun", "Last Run  Time:"};
  // "hh:mm:ss", the start of the latest run, or `kNeverRun`.
  controls::Label lblLastRunTime{*this, "lblLastRunTime", kNeverRun};

  controls::Button cmdDefaultSchedule{*this, "cmdDefaultSchedule", "Default"};
  controls::Button cmdCancel{*this, "cmdCancel", "Cancel"};
  controls::Button cmdApply{*this, "cmdApply", "&Apply"};

  // Decides at each tick whether this is the moment to run.
  controls::Timer tmrSchedule{*this, "tmrSchedule", std::chrono::milliseconds(10), true};
  // Stores the time of a run one second after its end, and arms the other one again.
  controls::Timer tmrMakeScehduleEnable{*this, "tmrMakeScehduleEnable",
                                        std::chrono::milliseconds(1000), false};
};

}  // namespace zelvane::scheduler
