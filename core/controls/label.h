// A text to read. Some can be clicked like a link.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

class Label : public CaptionedControl {
 public:
  // Setting the caption raises nothing but `changed`.
  using CaptionedControl::CaptionedControl;

  // The control that this label names: its access key goes there, a screen reader reads it there.
  // Null where the label names none.
  const Control* buddy() const { return buddy_; }
  void labels(const Control& control) { buddy_ = &control; }

  // A click by the user.
  void click() {
    if (reachable()) {
      clicked.raise();
    }
  }

  Event<> clicked;

 private:
  const Control* buddy_ = nullptr;
};

}  // namespace zelvane::controls
