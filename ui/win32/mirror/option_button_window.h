// A round button of a group on the screen.
#pragma once

#include <vector>

#include "core/controls/option_button.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class OptionButtonWindow : public Window {
 public:
  OptionButtonWindow(controls::OptionButton& control, Pane& parent);

  Size natural() const override;
  void onCommand(WORD code) override;

 private:
  controls::OptionButton& control_;
};

// Makes the buttons that exclude each other one group, which the arrow keys walk through. The tab
// key stops at the selected one: the system selects the one that the keys come to. They are in one
// pane, and follow each other there; the button or label behind them ends the group.
void groupTogether(const std::vector<controls::OptionButton*>& controls,
                   const std::vector<OptionButtonWindow*>& windows);

}  // namespace zelvane::win32
