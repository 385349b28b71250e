#include "ui/qt/mirror/text_box_widget.h"

#include <QApplication>
#include <QEvent>
#include <QSignalBlocker>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

TextBoxWidget::TextBoxWidget(controls::TextBox& control, QWidget& parent)
    : QLineEdit(&parent), control_(control) {
  setEchoMode(control.kind() == controls::TextBox::Kind::password ? QLineEdit::Password
                                                                  : QLineEdit::Normal);
  mirrorControl(control, *this);
  follow(control, *this, [this, &control] {
    const QString text = QString::fromStdString(control.text());
    if (this->text() != text) {
      // A text that the widget cannot hold to the letter must not come back as an edit.
      const QSignalBlocker silently(this);
      setText(text);
    }
    showBackground();
  });
  // Not "textEdited": what a screen reader or an input aid types arrives in this signal alone.
  connect(this, &QLineEdit::textChanged, this,
          [&control](const QString& text) { control.setText(text.toStdString()); });
}

void TextBoxWidget::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) {
    showBackground();
  }
}

void TextBoxWidget::showBackground() {
  QPalette colours;
  if (control_.background() == controls::TextBox::Background::buttonFace) {
    colours.setBrush(QPalette::Base, QApplication::palette(this).button());
  }
  setPalette(colours);
}

}  // namespace zelvane::qt
