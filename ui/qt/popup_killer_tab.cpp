#include "ui/qt/popup_killer_tab.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/check_box_widget.h"
#include "ui/qt/mirror/frame_widget.h"
#include "ui/qt/mirror/label_widget.h"
#include "ui/qt/mirror/list_view_widget.h"

namespace zelvane::qt {

PopupKillerTab::PopupKillerTab(popupkiller::PopupPage& page, QWidget& parent) : QWidget(&parent) {
  auto* frame = new FrameWidget(page.Frame1, *this);

  auto* sound = new QHBoxLayout;
  sound->addWidget(new ButtonWidget(page.Command1, *frame));
  sound->addWidget(new LineWidget(page.Label14, *frame), 1);

  frame->body().setSpacing(largeGap(*this));
  frame->body().addWidget(new CheckBoxWidget(page.chkPopupKillerActivate, *frame));
  frame->body().addWidget(new ListViewWidget(page.vindows, *frame), 1);
  frame->body().addLayout(sound);

  auto* column = new QVBoxLayout(this);
  setPageMargins(*column, *this);
  column->addWidget(frame, 1);
  column->addWidget(new LinkWidget(page.Label9, *this), 0, Qt::AlignRight);
}

}  // namespace zelvane::qt
