// The row of tabs on the screen, and which of the pages below it is seen.
#pragma once

#include <vector>

#include "core/controls/tab_strip.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// It is as high as its tabs. The pages are its neighbours and no part of it, so that the keys visit
// first the tabs and then the page in front.
class TabStripWindow : public Window {
 public:
  TabStripWindow(controls::TabStrip& control, Pane& parent);

  // The page of the next caption, which outlives this.
  void addPage(Window& page) { pages_.push_back(&page); }

  // Brings the page of the tab in front, and makes it where it is not made yet. To be called when
  // all pages are there; from then on it follows the control.
  void showPage();

  // Brings the next tab to the front, or the one before, round and round.
  void turn(int direction);

  Size natural() const override;
  void onLookChanged() override;
  std::optional<LRESULT> onNotify(const NMHDR& notice) override;

 private:
  controls::TabStrip& control_;
  std::vector<Window*> pages_;
};

}  // namespace zelvane::win32
