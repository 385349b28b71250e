#include "ui/qt/mirror/frame_widget.h"

#include <QLabel>

#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/note.h"

namespace zelvane::qt {

FrameWidget::FrameWidget(controls::Frame& control, QWidget& parent)
    : QWidget(&parent), body_(new QVBoxLayout(this)) {
  body_->setContentsMargins(0, 0, 0, 0);
  auto* heading = new QLabel(this);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  heading->setTextFormat(Qt::PlainText);
  auto* note = new Note(*this);
  body_->addWidget(heading);
  body_->addWidget(note);

  follow(control, *this, [&control, heading, note] {
    heading->setText(plainCaption(control.caption()));
    heading->setVisible(!control.caption().empty());
    note->setText(QString::fromStdString(control.description()));
    note->setVisible(!control.description().empty());
  });
  mirrorCaptioned(control, *this);
}

}  // namespace zelvane::qt
