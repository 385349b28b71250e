// A push button.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

class Button : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  // A press by the user. One that cannot be used is not pressed.
  void click() {
    if (reachable()) {
      clicked.raise();
    }
  }

  Event<> clicked;
};

}  // namespace zelvane::controls
