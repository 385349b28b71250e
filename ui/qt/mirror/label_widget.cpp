#include "ui/qt/mirror/label_widget.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

namespace {

std::function<bool()> unlessEmpty(const controls::Label& control) {
  return [&control] { return !control.caption().empty(); };
}

}  // namespace

LabelWidget::LabelWidget(controls::Label& control, QWidget& parent) : QLabel(&parent) {
  setTextFormat(Qt::PlainText);
  // The mark of an access key means something only where there is a control to jump to.
  const bool hasAccessKey = control.buddy() != nullptr;
  follow(control, *this, [this, &control, hasAccessKey] {
    setText(hasAccessKey ? QString::fromStdString(control.caption())
                         : plainCaption(control.caption()));
  });
  mirrorCaptioned(control, *this, unlessEmpty(control));
}

LineWidget::LineWidget(controls::Label& control, QWidget& parent) : QLabel(&parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  mirrorControl(control, *this);
  follow(control, *this, [this, &control] {
    setText(QString::fromStdString(control.caption()).simplified());
    setAccessibleName(text());
  });
}

QSize LineWidget::sizeHint() const {
  return QSize(fontMetrics().horizontalAdvance(text()), fontMetrics().height())
      .grownBy(contentsMargins());
}

QSize LineWidget::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 8, sizeHint().height()};
}

void LineWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(
      &painter, contentsRect(), int(alignment() | Qt::AlignVCenter | Qt::TextSingleLine), palette(),
      isEnabled(), fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()),
      foregroundRole());
}

LinkWidget::LinkWidget(controls::Label& control, QWidget& parent) : QPushButton(&parent) {
  setFlat(true);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  follow(control, *this, [this, &control] { setText(plainCaption(control.caption())); });
  mirrorCaptioned(control, *this, unlessEmpty(control));
  connect(this, &QPushButton::clicked, this, [&control] { control.click(); });
}

QSize LinkWidget::sizeHint() const {
  return fontMetrics().size(Qt::TextHideMnemonic, text()) + QSize(4, 4);
}

void LinkWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QFont underlined = font();
  underlined.setUnderline(isEnabled());
  painter.setFont(underlined);
  style()->drawItemText(&painter, rect(), Qt::AlignCenter | Qt::TextHideMnemonic, palette(),
                        isEnabled(), text(), isEnabled() ? QPalette::Link : QPalette::WindowText);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

}  // namespace zelvane::qt
