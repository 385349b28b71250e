// Texts to read on the screen, in three shapes.
#pragma once

#include "core/controls/label.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Takes no room while it is empty.
class LabelWindow : public Window {
 public:
  LabelWindow(controls::Label& control, Pane& parent);

  Size natural() const override;
};

// One line that keeps its height when it is empty and never asks for more width than it is given:
// where the text does not fit, a part is left out, of a path its middle. Line breaks in it are
// shown as blanks, and "&", which may be part of a path, as it is.
class LineWindow : public Window {
 public:
  LineWindow(controls::Label& control, Pane& parent);

  Size natural() const override;
};

// A label that is clicked like a link, also with the keyboard. To the system it is a button: its
// own kind of link breaks an address that has just its room.
class LinkWindow : public Window {
 public:
  LinkWindow(controls::Label& control, Pane& parent);

  Size natural() const override;
  void onCommand(WORD code) override;
  void onDraw(const DRAWITEMSTRUCT& drawing) override;

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  controls::Label& control_;
};

}  // namespace zelvane::win32
