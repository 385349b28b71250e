#include "ui/qt/about_box.h"

#include <QVBoxLayout>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/label_widget.h"

namespace zelvane::qt {

AboutBox::AboutBox(about::AboutPage& page, controls::OpenBoxes& boxes, const controls::Form& form,
                   QWidget& window)
    : QObject(&window), page_(page), boxes_(boxes), form_(form), window_(window) {
  follow(page.frmAbout, *this, [this] {
    if (page_.frmAbout.visible() && !opening_) {
      open();
    } else if (!page_.frmAbout.visible() && opening_) {
      close();
    }
  });
}

// Wherever it belongs just now.
AboutBox::~AboutBox() { delete dialog_; }

void AboutBox::make() {
  dialog_ = new QDialog(&window_);
  dialog_->setObjectName(QString::fromStdString(page_.frmAbout.name()));
  dialog_->setWindowModality(Qt::ApplicationModal);
  dialog_->setWindowIcon(window_.windowIcon());
  auto* column = new QVBoxLayout(dialog_);
  setPageMargins(*column, *dialog_);
  column->setSpacing(largeGap(*dialog_));
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addWidget(new LabelWidget(page_.lblCopyRight, *dialog_));
  auto* ok = new ButtonWidget(page_.cmdOK, *dialog_);
  ok->setDefault(true);
  column->addWidget(ok, 0, Qt::AlignRight);
  // Its close box, or the escape key.
  connect(dialog_, &QDialog::finished, this,
          [this] { page_.frmAbout.unload(controls::UnloadMode::controlMenu); });
}

void AboutBox::open() {
  if (!dialog_) {
    make();
  }
  const bool inSight = form_.visible() && form_.state() == controls::Form::State::normal;
  dialog_->setParent(inSight ? &window_ : nullptr, dialog_->windowFlags());
  dialog_->setWindowTitle(plainCaption(page_.frmAbout.caption()));
  dialog_->setAccessibleName(dialog_->windowTitle());
  opening_.emplace(boxes_);
  dialog_->show();
  dialog_->activateWindow();
}

void AboutBox::close() {
  dialog_->hide();
  opening_.reset();
}

}  // namespace zelvane::qt
