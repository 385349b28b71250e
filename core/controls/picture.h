// A picture, known by what it shows; the shell has the image.
#pragma once

#include "core/controls/control.h"

namespace zelvane::controls {

class Picture : public Control {
 public:
  enum class Image { programIcon, broom };

  Picture(Page& page, std::string name, Image image)
      : Control(page, std::move(name)), image_(image) {}

  Image image() const { return image_; }

 private:
  Image image_;
};

}  // namespace zelvane::controls
