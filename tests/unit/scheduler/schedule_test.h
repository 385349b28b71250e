// The schedule's page with its handlers, on a desktop in memory.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/memory/memory_desktop.h"
#include "scheduler/schedule_kind.h"
#include "scheduler/schedule_page.h"
#include "scheduler/schedule_settings.h"

namespace zelvane::scheduler {

using namespace std::chrono_literals;

class ScheduleTest : public testing::Test {
 protected:
  using Background = controls::TextBox::Background;

  static platform::LocalTime at(std::chrono::year_month_day date,
                                std::chrono::seconds timeOfDay = 0s) {
    return {date, timeOfDay};
  }

  bool isEdited() const { return page.cmdApply.enabled() && page.cmdCancel.enabled(); }
  bool isApplied() const { return !page.cmdApply.enabled() && !page.cmdCancel.enabled(); }

  bool areHoursEnabled() const {
    return page.txtHours.enabled() && page.udnHours.enabled() &&
           page.txtHours.background() == Background::window;
  }
  bool areHoursDisabled() const {
    return !page.txtHours.enabled() && !page.udnHours.enabled() &&
           page.txtHours.background() == Background::buttonFace;
  }

  std::optional<std::string> stored(const std::string& key) const {
    return desktop.settings.find("Schedule", key);
  }
  void store(const std::string& key, const std::string& text) {
    desktop.settings.put("Schedule", key, text);
  }

  platform::MemoryDesktop desktop;
  core::SettingsStore settings{desktop.settings, desktop.identity};
  core::Handler handler{desktop.dialogs, desktop.identity};
  SchedulePage page;
};

}  // namespace zelvane::scheduler
