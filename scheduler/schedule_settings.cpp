#include "scheduler/schedule_settings.h"

#include <optional>

#include "core/numbers.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/identity.h"
#include "scheduler/picker_text.h"
#include "scheduler/schedule_kind.h"

namespace zelvane::scheduler {

namespace {

using Background = controls::TextBox::Background;

constexpr auto kApplication = core::SettingsStore::Application::title;
constexpr auto kSection = "Schedule";
constexpr auto kNeverApplied = "None";

// The present moment is what an empty picker shows.
void showAndEmpty(controls::DatePicker& picker, const platform::LocalTime& now) {
  picker.setValue(now);
  picker.setValue(std::nullopt);
}

void emptyAndDisable(controls::DatePicker& picker) {
  picker.setValue(std::nullopt);
  picker.setEnabled(false);
}

}  // namespace

ScheduleSettings::ScheduleSettings(SchedulePage& page, core::SettingsStore& settings,
                                   const platform::Desktop& desktop, const core::Handler& handler)
    : page_(page), settings_(settings), desktop_(desktop), handler_(handler) {
  connect();
}

void ScheduleSettings::connect() {
  page_.cmbDays.clicked.connect([this] { cmbDays_Click(); });
  controls::DatePicker& date = page_.dtpScheduleDate;
  for (controls::Event<>* edit : {&date.edited, &date.clicked, &date.closedUp}) {
    edit->connect([this] { dtpScheduleDate_Change(); });
  }
  controls::DatePicker& time = page_.dtpScheduleTime;
  for (controls::Event<>* edit : {&time.edited, &time.clicked, &time.closedUp}) {
    edit->connect([this] { dtpScheduleTime_Change(); });
  }
  page_.txtHours.edited.connect([this] { txtHours_Change(); });
  page_.cmdApply.clicked.connect([this] { cmdApply_Click(); });
  page_.cmdCancel.clicked.connect([this] { cmdCancel_Click(); });
  page_.cmdDefaultSchedule.clicked.connect([this] { cmdDefaultSchedule_Click(); });
}

void ScheduleSettings::emptyPickers() {
  const platform::LocalTime now = desktop_.clock.now();
  page_.dtpScheduleDate.setValue(now);
  page_.dtpScheduleTime.setValue(now);
  page_.dtpScheduleDate.setValue(std::nullopt);
  page_.dtpScheduleTime.setValue(std::nullopt);
  markApplied();
}

void ScheduleSettings::load() {
  if (stored("RunOn", kNeverApplied) == kNeverApplied) {
    page_.cmbDays.setListIndex(kDaily);
  } else {
    loadPicker(page_.dtpScheduleDate, "Date");
    loadPicker(page_.dtpScheduleTime, "Time");
    page_.txtHours.setText(stored("RunAfter", ""));
    page_.lblLastRunTime.setCaption(stored("LastRunTime", ""));
    // Last, because the kind decides which of the others hold.
    page_.cmbDays.setListIndex(core::toInteger(stored("RunOn", std::to_string(kDaily))));
  }
  if (page_.cmbDays.listIndex() == kNever) {
    enableHours(false);
  }
}

void ScheduleSettings::markApplied() {
  page_.cmdApply.setEnabled(false);
  page_.cmdCancel.setEnabled(false);
}

void ScheduleSettings::cmbDays_Click() {
  handler_([this] {
    const int kind = page_.cmbDays.listIndex();
    // Emptying the time picker is an edit of it, which enables the hours; so they come last.
    if (isWeekday(kind) || kind == kDaily) {
      emptyAndDisable(page_.dtpScheduleDate);
      page_.dtpScheduleTime.setEnabled(true);
      enableHoursUnlessTimed();
      if (page_.txtHours.enabled() && page_.txtHours.text().empty()) {
        page_.txtHours.setText("2");
      }
    } else if (kind == kDate) {
      page_.dtpScheduleDate.setEnabled(true);
      emptyAndDisable(page_.dtpScheduleTime);
      enableHours(true);
    } else if (kind == kDateAndTime) {
      page_.dtpScheduleDate.setEnabled(true);
      page_.dtpScheduleTime.setEnabled(true);
      enableHours(false);
    } else if (kind == kNever) {
      emptyAndDisable(page_.dtpScheduleDate);
      emptyAndDisable(page_.dtpScheduleTime);
      enableHours(false);
    }
    markEdited();
  });
}

void ScheduleSettings::dtpScheduleDate_Change() {
  handler_([this] { markEdited(); });
}

void ScheduleSettings::dtpScheduleTime_Change() {
  handler_([this] {
    enableHoursUnlessTimed();
    markEdited();
  });
}

void ScheduleSettings::txtHours_Change() {
  handler_([this] { markEdited(); });
}

void ScheduleSettings::cmdApply_Click() {
  handler_([this] {
    const int kind = page_.cmbDays.listIndex();
    if ((kind == kDate || kind == kDateAndTime) && !page_.dtpScheduleDate.value()) {
      return tell("Define Date");
    }
    if (kind == kDateAndTime && !page_.dtpScheduleTime.value()) {
      return tell("Define Time");
    }
    store();
    markApplied();
  });
}

void ScheduleSettings::cmdCancel_Click() {
  handler_([this] {
    load();
    markApplied();
  });
}

void ScheduleSettings::cmdDefaultSchedule_Click() {
  handler_([this] { page_.cmbDays.setListIndex(kDaily); });
}

void ScheduleSettings::markEdited() {
  page_.cmdApply.setEnabled(true);
  page_.cmdCancel.setEnabled(true);
}

void ScheduleSettings::enableHours(bool enabled) {
  page_.txtHours.setEnabled(enabled);
  page_.udnHours.setEnabled(enabled);
  page_.txtHours.setBackground(enabled ? Background::window : Background::buttonFace);
}

// A time of day makes the hours between two runs meaningless.
void ScheduleSettings::enableHoursUnlessTimed() {
  enableHours(!page_.dtpScheduleTime.value().has_value());
}

void ScheduleSettings::tell(const std::string& text) {
  desktop_.dialogs.show({.text = text, .title = desktop_.identity.version().title});
}

// The kind comes last: without it, a schedule counts as never applied.
void ScheduleSettings::store() {
  const auto save = [this](const char* key, const std::string& text) {
    settings_.save(kApplication, kSection, key, text);
  };
  save("Date", textOf(page_.dtpScheduleDate));
  save("Time", textOf(page_.dtpScheduleTime));
  save("RunAfter", page_.txtHours.text());
  save("LastRunTime", page_.lblLastRunTime.caption());
  save("RunOn", std::to_string(page_.cmbDays.listIndex()));
}

std::string ScheduleSettings::stored(const std::string& key, std::string_view absent) const {
  return settings_.load(kApplication, kSection, key, absent);
}

void ScheduleSettings::loadPicker(controls::DatePicker& picker, const std::string& key) {
  const std::string text = stored(key, kNoValue);
  if (text == kNoValue) {
    showAndEmpty(picker, desktop_.clock.now());
  } else {
    picker.setValue(parseValue(text, picker));
  }
}

}  // namespace zelvane::scheduler
