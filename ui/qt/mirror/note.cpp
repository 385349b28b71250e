#include "ui/qt/mirror/note.h"

#include <QApplication>
#include <QEvent>

namespace zelvane::qt {

Note::Note(QWidget& parent) : QLabel(&parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  dim();
}

void Note::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) {
    dim();
  }
}

void Note::dim() {
  const QPalette colours = QApplication::palette(this);
  const QColor text = colours.color(QPalette::Active, QPalette::WindowText);
  const QColor background = colours.color(QPalette::Active, QPalette::Window);
  const auto mix = [](float one, float other) { return one * 0.68F + other * 0.32F; };
  QPalette dimmed;
  dimmed.setColor(QPalette::WindowText, QColor::fromRgbF(mix(text.redF(), background.redF()),
                                                         mix(text.greenF(), background.greenF()),
                                                         mix(text.blueF(), background.blueF())));
  setPalette(dimmed);
}

}  // namespace zelvane::qt
