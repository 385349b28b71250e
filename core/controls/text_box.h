// A line that the user types into.
#pragma once

#include <string>

#include "core/controls/control.h"

namespace zelvane::controls {

class TextBox : public Control {
 public:
  enum class Kind { plain, password };
  // Colours by role; the desktop's theme decides how they look.
  enum class Background { window, buttonFace };

  TextBox(Page& page, std::string name, std::string text = {}, Kind kind = Kind::plain)
      : Control(page, std::move(name)), text_(std::move(text)), kind_(kind) {}

  const std::string& text() const { return text_; }

  // Raises `edited` if the text changes, as typing does.
  void setText(std::string text) {
    if (assign(text_, std::move(text))) {
      edited.raise();
    }
  }

  // A second text that the program keeps with the box and never shows.
  const std::string& tag() const { return tag_; }
  void setTag(std::string tag) { tag_ = std::move(tag); }

  Kind kind() const { return kind_; }

  Background background() const { return background_; }
  void setBackground(Background background) { assign(background_, background); }

  Event<> edited;

 private:
  std::string text_;
  std::string tag_;
  Kind kind_;
  Background background_ = Background::window;
};

}  // namespace zelvane::controls
