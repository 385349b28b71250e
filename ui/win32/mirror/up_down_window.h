// The small arrows on the screen, beside the text box that they count.
#pragma once

#include "core/controls/up_down.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class UpDownWindow : public Window {
 public:
  // The arrow keys count in `box` as well, which lies in `parent` as well and outlives this.
  UpDownWindow(controls::UpDown& control, Window& box, Pane& parent);

  Size natural() const override;
  std::optional<LRESULT> onNotify(const NMHDR& notice) override;

 private:
  void placeAnew();

  controls::UpDown& control_;
};

}  // namespace zelvane::win32
