#include "ui/qt/mirror/note.h"

#include <QApplication>
#include <QEvent>

namespace zelvane::qt {

Note::Note(QWidget& parent) : QLabel(&parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  dim();
}

int Note::heightForWidth(int width) const {
  if (measured_ != text()) {
    heights_.clear();
    measured_ = text();
  }
  const auto known = heights_.constFind(width);
  return known != heights_.cend() ? *known : *heights_.insert(width, QLabel::heightForWidth(width));
}

void Note::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  heights_.clear();
  if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) {
    dim();
  }
}

void Note::dim() {
  const QPalette colours = QApplication::palette(this);
  const QColor text = colours.color(QPalette::Active, QPalette::WindowText);
  const QColor background = colours.color(QPalette::Active, QPalette::Window);
  const auto mix = [](float one, float other) { return one * 0.68F + other * 0.32F; };
  const QColor dim =
      QColor::fromRgbF(mix(text.redF(), background.redF()), mix(text.greenF(), background.greenF()),
                       mix(text.blueF(), background.blueF()));
  QPalette dimmed;
  dimmed.setColor(QPalette::WindowText, dim);
  dimmed.setColor(QPalette::Text, dim);  // with which labels write on a card
  setPalette(dimmed);
}

}  // namespace zelvane::qt
