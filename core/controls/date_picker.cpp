#include "core/controls/date_picker.h"

namespace zelvane::controls {

std::optional<platform::LocalTime> DatePicker::value() const {
  return chosen_ ? std::optional(shown_) : std::nullopt;
}

void DatePicker::setValue(std::optional<platform::LocalTime> value) {
  if (value == this->value()) {
    return;
  }
  chosen_ = value.has_value();
  shown_ = value.value_or(shown_);
  changed.raise();
  edited.raise();
}

void DatePicker::click() {
  if (reachable()) {
    clicked.raise();
  }
}

void DatePicker::closeUp() {
  if (reachable()) {
    closedUp.raise();
  }
}

}  // namespace zelvane::controls
