// A round button of which at most one in a group is selected.
#pragma once

#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

class OptionButton;

// The buttons that exclude each other. It outlives them.
class OptionGroup {
 private:
  friend class OptionButton;
  std::vector<OptionButton*> buttons_;
};

class OptionButton : public CaptionedControl {
 public:
  OptionButton(Page& page, std::string name, std::string caption, OptionGroup& group);

  bool value() const { return value_; }

  // Selecting one that was not selected deselects the others of its group first, then raises
  // `clicked` here and nothing there. Deselecting raises nothing.
  void setValue(bool selected);

  // A click by the user.
  void click();

  Event<> clicked;

 private:
  OptionGroup& group_;
  bool value_ = false;
};

}  // namespace zelvane::controls
