// A picture on the screen.
#pragma once

#include "core/controls/picture.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// One of the icons that travel inside the program.
class IconWindow : public Window {
 public:
  // `side` is that of its square, at 96 dots per inch.
  IconWindow(const wchar_t* resource, int side, Pane& parent);

  Size natural() const override;
  const wchar_t* resource() const { return resource_; }

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  void draw(HDC surface) const;

  const wchar_t* resource_;
  int side_;
};

// The face of a picture control.
class PictureWindow : public IconWindow {
 public:
  PictureWindow(controls::Picture& control, int side, Pane& parent);
};

}  // namespace zelvane::win32
