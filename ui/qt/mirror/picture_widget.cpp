#include "ui/qt/mirror/picture_widget.h"

#include <QPainter>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

namespace {

using Image = controls::Picture::Image;

QString resource(Image image) {
  return image == Image::programIcon ? ":/zelvane/zelvane.svg" : ":/zelvane/broom.svg";
}

QString meaning(Image image) {
  return image == Image::programIcon ? "The program's icon" : "A broom";
}

}  // namespace

PictureWidget::PictureWidget(controls::Picture& control, int side, QWidget& parent)
    : QWidget(&parent), image_(control.image()), drawing_(resource(control.image())) {
  setFixedSize(side, side);
  setAccessibleName(meaning(control.image()));
  mirrorControl(control, *this);
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setOpacity(isEnabled() ? 1 : 0.4);
  drawing_.render(&painter, rect());
}

QIcon icon(Image image) {
  QSvgRenderer drawing(resource(image));
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace zelvane::qt
