// How far a job is, on the screen.
#pragma once

#include "core/controls/progress_bar.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class ProgressBarWindow : public Window {
 public:
  ProgressBarWindow(controls::ProgressBar& control, Pane& parent);

  Size natural() const override;
};

}  // namespace zelvane::win32
