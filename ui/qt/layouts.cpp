#include "ui/qt/layouts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <QSvgRenderer>

#include "ui/qt/mirror/check_box_widget.h"
#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/note.h"

namespace zelvane::qt {

namespace {

// Our own, because looking for the desktop's takes a fifth of the time until the window is there.
class WarningSign : public QWidget {
 public:
  explicit WarningSign(QWidget& parent)
      : QWidget(&parent), drawing_(QStringLiteral(":/zelvane/warning.svg")) {
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setFixedSize(side, side);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    drawing_.render(&painter, rect());
  }

 private:
  QSvgRenderer drawing_;
};

}  // namespace

int smallGap(const QWidget& widget) { return widget.fontMetrics().height() / 2; }

int largeGap(const QWidget& widget) { return widget.fontMetrics().height(); }

void setPageMargins(QLayout& layout, const QWidget& page) {
  const int gap = largeGap(page);
  layout.setContentsMargins(gap, gap, gap, gap);
}

QScrollArea* scrollable(QWidget& page) {
  auto* area = new QScrollArea(page.parentWidget());
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  // The controls on it take the keys, and it follows them; a stop at the area itself says nothing.
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(&page);
  return area;
}

QLabel* heading(const QString& text, QWidget& parent) {
  auto* label = new QLabel(text, &parent);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

Card::Card(QWidget& parent) : QFrame(&parent), rows_(new QVBoxLayout(this)) {
  setFrameShape(QFrame::StyledPanel);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  rows_->setContentsMargins(0, 0, 0, 0);
  rows_->setSpacing(0);
}

void Card::separate() {
  if (rows_->isEmpty()) {
    return;
  }
  auto* line = new QFrame(this);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Plain);
  line->setForegroundRole(QPalette::Midlight);
  rows_->addWidget(line);
}

void Card::add(QWidget& row) {
  separate();
  const int gap = smallGap(*this);
  row.layout()->setContentsMargins(gap * 2, gap, gap * 2, gap);
  rows_->addWidget(&row);
}

void Card::add(QLayout& row) {
  separate();
  const int gap = smallGap(*this);
  row.setContentsMargins(gap * 2, gap, gap * 2, gap);
  rows_->addLayout(&row);
}

OptionRow::OptionRow(controls::CheckBox& control, Harm harm, QWidget& parent) : QWidget(&parent) {
  auto* box = new CheckBoxWidget(control, *this);
  auto* note = new Note(*this);

  const int indent = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, box) +
                     style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, box);
  auto* below = new QHBoxLayout;
  below->setContentsMargins(indent, 0, 0, 0);
  below->addWidget(note, 1);

  auto* texts = new QVBoxLayout;
  texts->setSpacing(1);
  texts->addWidget(box);
  texts->addLayout(below);

  auto* row = new QHBoxLayout(this);
  row->addLayout(texts, 1);
  if (harm == Harm::lasting) {
    row->addWidget(new WarningSign(*this));
  }

  // Only now: a text that is shown outside a layout is measured for nothing.
  follow(control, *note, [&control, note] {
    note->setText(QString::fromStdString(control.description()));
    note->setVisible(!control.description().empty());
  });
}

}  // namespace zelvane::qt
