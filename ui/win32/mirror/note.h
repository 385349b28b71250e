// A quiet line of explanation below a caption, and a heading above a group.
#pragma once

#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Between the colours of text and background, so that it is read after what it explains, and still
// can be read. It breaks its line where the room ends.
class Note : public Window {
 public:
  explicit Note(Pane& parent);

  Size natural() const override;
  int heightFor(int width) const override;
  HBRUSH onColours(HDC surface) override;
};

// A short text that stands out.
class Heading : public Window {
 public:
  Heading(Font font, Pane& parent);

  Size natural() const override;
};

}  // namespace zelvane::win32
