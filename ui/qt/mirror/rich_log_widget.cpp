#include "ui/qt/mirror/rich_log_widget.h"

#include <QEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

namespace {

using Shades = std::array<QColor, 3>;  // black, blue, green

const Shades kOnLight{QColor(0, 0, 0), QColor(0, 0, 255), QColor(0, 128, 0)};
const Shades kOnDark{QColor(240, 240, 240), QColor(130, 177, 255), QColor(129, 212, 133)};

// 0 for black, 1 for white, as the eye weighs the colours.
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

double worstContrast(const Shades& shades, const QColor& background) {
  double worst = contrast(shades[0], background);
  for (const QColor& shade : shades) {
    worst = std::min(worst, contrast(shade, background));
  }
  return worst;
}

}  // namespace

RichLogWidget::RichLogWidget(controls::RichLog& control, QWidget& parent)
    : QPlainTextEdit(&parent), control_(control) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setPlaceholderText(QString::fromStdString(control.description()));
  mirrorControl(control, *this);
  // A line that is added may bring the scroll bar, which makes the text narrower and so longer:
  // only the bar's own range tells where the end is at last.
  QScrollBar* bar = verticalScrollBar();
  connect(bar, &QScrollBar::valueChanged, this,
          [this, bar](int value) { atEnd_ = value == bar->maximum(); });
  connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int end) {
    if (atEnd_) {
      bar->setValue(end);
    }
  });
  control.cleared.connect([this, alive = QPointer<QObject>(this)] {
    if (alive) {
      forget();
    }
  });
  follow(control, *this, [this] { showNewRuns(); });
}

QColor RichLogWidget::shade(controls::RichLog::Colour colour) const {
  const QColor background = palette().color(QPalette::Base);
  const bool dark = worstContrast(kOnDark, background) > worstContrast(kOnLight, background);
  return (dark ? kOnDark : kOnLight)[static_cast<std::size_t>(colour)];
}

void RichLogWidget::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    forget();
    showNewRuns();
  }
}

void RichLogWidget::forget() {
  clear();
  shown_ = 0;
}

void RichLogWidget::showNewRuns() {
  if (shown_ == control_.runs().size()) {
    return;
  }
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  for (; shown_ < control_.runs().size(); ++shown_) {
    const controls::RichLog::Run& run = control_.runs()[shown_];
    QTextCharFormat format;
    format.setForeground(shade(run.colour));
    end.insertText(QString::fromStdString(run.text).replace("\r\n", "\n"), format);
  }
  QTextBlock first = document()->firstBlock();
  first.setVisible(first.length() > 1 || !first.next().isValid());
}

}  // namespace zelvane::qt
