// A field for a date or a time of day, which may hold none.
#pragma once

#include <optional>

#include "core/controls/control.h"
#include "platform/local_time.h"

namespace zelvane::controls {

class DatePicker : public Control {
 public:
  enum class Kind { date, time };

  DatePicker(Page& page, std::string name, Kind kind)
      : Control(page, std::move(name)), kind_(kind) {}

  Kind kind() const { return kind_; }

  // What the field shows: always a whole date and time, also while it holds no value.
  const platform::LocalTime& shown() const { return shown_; }

  // What the user or the program chose; nothing while the field is empty.
  std::optional<platform::LocalTime> value() const;

  // Raises `edited` if the value changes. A value is shown too; emptying the field leaves what it
  // shows as it is.
  void setValue(std::optional<platform::LocalTime> value);

  // The user pressed into the field, or the calendar that it had opened went away, whether or not
  // the value became another one.
  void click();
  void closeUp();

  Event<> edited;
  Event<> clicked;
  Event<> closedUp;

 private:
  Kind kind_;
  platform::LocalTime shown_{};
  bool chosen_ = false;
};

}  // namespace zelvane::controls
