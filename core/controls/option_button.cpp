#include "core/controls/option_button.h"

#include <utility>

namespace zelvane::controls {

OptionButton::OptionButton(Page& page, std::string name, std::string caption, OptionGroup& group)
    : CaptionedControl(page, std::move(name), std::move(caption)), group_(group) {
  group_.buttons_.push_back(this);
}

void OptionButton::setValue(bool selected) {
  if (selected == value_) {
    return;
  }
  if (selected) {
    for (OptionButton* other : group_.buttons_) {
      if (other != this) {
        other->assign(other->value_, false);
      }
    }
    assign(value_, true);
    clicked.raise();
  } else {
    assign(value_, false);
  }
}

void OptionButton::click() {
  if (reachable()) {
    setValue(true);
  }
}

}  // namespace zelvane::controls
