// A box with a tick.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

class CheckBox : public CaptionedControl {
 public:
  static constexpr int kUnchecked = 0;
  static constexpr int kChecked = 1;
  static constexpr int kGreyed = 2;

  using CaptionedControl::CaptionedControl;

  int value() const { return value_; }
  bool checked() const { return value_ == kChecked; }

  // Raises `clicked` if the value changes, as a user's click does. Any other number than the three
  // above is refused with invalidPropertyValue.
  void setValue(int value);

  // A click by the user: checked and greyed become unchecked, unchecked becomes checked.
  void click();

  Event<> clicked;

 private:
  int value_ = kUnchecked;
};

}  // namespace zelvane::controls
