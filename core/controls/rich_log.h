// A box of text in several colours that is read and added to, never typed into.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/controls/control.h"

namespace zelvane::controls {

class RichLog : public Control {
 public:
  // Colours by role. On a plain light desktop they are black, blue (0, 0, 255) and green (0, 128,
  // 0); a shell picks shades that can be read on its own background.
  enum class Colour { black, blue, green };

  struct Run {
    std::string text;
    Colour colour;

    friend bool operator==(const Run&, const Run&) = default;
  };

  using Control::Control;

  // The pieces in their order. Line breaks are "\r\n".
  const std::vector<Run>& runs() const { return runs_; }

  // All pieces in one text.
  std::string text() const;

  // Empties the box. The selection colour stays.
  void clear();

  // The colour of what is appended from here on.
  Colour selectionColour() const { return selectionColour_; }
  void setSelectionColour(Colour colour) { selectionColour_ = colour; }

  // Adds a piece in the selection colour. The cost does not grow with what is there already.
  void append(std::string_view text);

  // Raised by `clear`. A shell that shows the runs up to here forgets them.
  Event<> cleared;

 private:
  std::vector<Run> runs_;
  Colour selectionColour_ = Colour::black;
};

}  // namespace zelvane::controls
