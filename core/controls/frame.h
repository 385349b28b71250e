// A border with a caption around other controls. Disabled, it makes all of them unusable and
// touches none of their own states.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
};

}  // namespace zelvane::controls
