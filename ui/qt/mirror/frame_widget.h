// A frame on the screen: disabled, it makes everything in it unusable.
#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "core/controls/frame.h"

namespace zelvane::qt {

// Draws no border: it is a heading for its caption, a quiet line for its description, and below
// them whatever is put into its body. What is empty takes no room.
class FrameWidget : public QWidget {
 public:
  FrameWidget(controls::Frame& control, QWidget& parent);

  QVBoxLayout& body() { return *body_; }

 private:
  QVBoxLayout* body_;
};

}  // namespace zelvane::qt
