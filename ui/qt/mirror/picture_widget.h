// A picture on the screen, drawn from vectors at any size.
#pragma once

#include <QIcon>
#include <QSvgRenderer>
#include <QWidget>

#include "core/controls/picture.h"

namespace zelvane::qt {

class PictureWidget : public QWidget {
 public:
  // `side` is that of the square it fills, in units of the toolkit.
  PictureWidget(controls::Picture& control, int side, QWidget& parent);

  controls::Picture::Image image() const { return image_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  controls::Picture::Image image_;
  QSvgRenderer drawing_;
};

// The same pictures as icons, in the usual sizes.
QIcon icon(controls::Picture::Image image);

}  // namespace zelvane::qt
