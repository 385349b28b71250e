// Texts to read on the screen, in three shapes.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "core/controls/label.h"

namespace zelvane::qt {

// Takes no room while it is empty.
class LabelWidget : public QLabel {
 public:
  LabelWidget(controls::Label& control, QWidget& parent);
};

// One line that keeps its height when it is empty and never asks for more width than it is given:
// where the text does not fit, its middle is left out. Line breaks in it are shown as blanks, and
// "&", which may be part of a path, as it is.
class LineWidget : public QLabel {
 public:
  LineWidget(controls::Label& control, QWidget& parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A label that is clicked like a link, also with the keyboard.
class LinkWidget : public QPushButton {
 public:
  LinkWidget(controls::Label& control, QWidget& parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zelvane::qt
