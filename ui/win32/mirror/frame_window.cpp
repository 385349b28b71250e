#include "ui/win32/mirror/frame_window.h"

#include "platform/windows/wide_text.h"
#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/note.h"

namespace zelvane::win32 {

namespace {

void showWhetherUsable(Window& above) {
  above.visit([](Window& window) {
    if (window.control() != nullptr) {
      window.setUsable(window.control()->reachable());
    }
  });
}

}  // namespace

FrameWindow::FrameWindow(controls::Frame& control, Pane& parent) : Pane(parent) {
  auto& heading = make<Heading>(Font::bold);
  auto& note = make<Note>();
  body().add(heading);
  body().add(note);
  mirrorControl(control, *this);
  follow(control, *this, [this, &control, &heading, &note] {
    heading.setCaption(plainCaption(control.caption()));
    heading.setShown(!control.caption().empty());
    note.setCaption(platform::wideText(control.description()));
    note.setShown(!control.description().empty());
    showWhetherUsable(*this);
  });
}

}  // namespace zelvane::win32
