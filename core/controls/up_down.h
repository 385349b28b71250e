// A pair of small arrows that count the number in a text box up and down.
#pragma once

#include "core/controls/control.h"
#include "core/controls/text_box.h"

namespace zelvane::controls {

class UpDown : public Control {
 public:
  UpDown(Page& page, std::string name, TextBox& buddy, int lowest, int highest)
      : Control(page, std::move(name)), buddy_(buddy), lowest_(lowest), highest_(highest) {}

  // One press by the user, +1 or -1: the buddy's text becomes the next number, which never leaves
  // the range. A text that is no number counts as the lowest.
  void step(int direction);

 private:
  TextBox& buddy_;
  int lowest_;
  int highest_;
};

}  // namespace zelvane::controls
