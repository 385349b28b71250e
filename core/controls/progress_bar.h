// How far a job is.
#pragma once

#include <algorithm>

#include "core/controls/control.h"

namespace zelvane::controls {

class ProgressBar : public Control {
 public:
  using Control::Control;

  // 0 nothing done, 1 all done.
  double fraction() const { return fraction_; }

  // A fraction outside 0 to 1 is drawn to the nearer end.
  void setFraction(double fraction) { assign(fraction_, std::clamp(fraction, 0.0, 1.0)); }

 private:
  double fraction_ = 0;
};

}  // namespace zelvane::controls
