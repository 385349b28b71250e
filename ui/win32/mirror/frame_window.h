// A group of controls on the screen, with the frame's caption and description above it.
#pragma once

#include "core/controls/frame.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// While the frame is disabled, none of the controls below it can be used, whatever their own state.
class FrameWindow : public Pane {
 public:
  FrameWindow(controls::Frame& control, Pane& parent);
};

}  // namespace zelvane::win32
