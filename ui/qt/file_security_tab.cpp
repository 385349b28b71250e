#include "ui/qt/file_security_tab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <initializer_list>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/frame_widget.h"
#include "ui/qt/mirror/label_widget.h"
#include "ui/qt/mirror/option_button_widget.h"
#include "ui/qt/mirror/progress_bar_widget.h"
#include "ui/qt/mirror/text_box_widget.h"

namespace zelvane::qt {

namespace {

// The buttons of one group, in a widget of their own.
QWidget* group(std::initializer_list<controls::OptionButton*> buttons, QBoxLayout::Direction lie,
               QWidget& parent) {
  auto* widget = new QWidget(&parent);
  auto* layout = new QBoxLayout(lie, widget);
  layout->setContentsMargins(0, 0, 0, 0);
  for (controls::OptionButton* button : buttons) {
    layout->addWidget(new OptionButtonWidget(*button, *widget));
  }
  return widget;
}

}  // namespace

FileSecurityTab::FileSecurityTab(filesecurity::FileSecurityPage& page, QWidget& parent)
    : QWidget(&parent) {
  auto* frame = new FrameWidget(page.fmDravik, *this);
  frame->body().setSpacing(largeGap(*this));
  frame->body().addLayout(makeChoices(page, *frame));
  frame->body().addLayout(makeFields(page, *frame));
  frame->body().addStretch();
  frame->body().addLayout(makeJob(page, *frame));

  auto* column = new QVBoxLayout(this);
  setPageMargins(*column, *this);
  column->addWidget(frame);
}

QLayout* FileSecurityTab::makeChoices(filesecurity::FileSecurityPage& page, FrameWidget& frame) {
  auto* unit = new QVBoxLayout;
  unit->addWidget(group({&page.Option4, &page.Option5}, QBoxLayout::TopToBottom, frame));
  unit->addWidget(new LabelWidget(page.lblFileOrFolder, frame));

  auto* row = new QHBoxLayout;
  row->setSpacing(largeGap(*this) * 3);
  row->addWidget(group({&page.Option2, &page.Option3}, QBoxLayout::TopToBottom, frame), 0,
                 Qt::AlignTop);
  row->addLayout(unit);
  row->addStretch();
  return row;
}

QLayout* FileSecurityTab::makeFields(filesecurity::FileSecurityPage& page, FrameWidget& frame) {
  auto* grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  const auto addRow = [&](controls::Label& label, controls::TextBox& box, QWidget* beside) {
    const int row = grid->rowCount();
    grid->addWidget(new LabelWidget(label, frame), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(new TextBoxWidget(box, frame), row, 1, 1, beside == nullptr ? 2 : 1);
    if (beside != nullptr) {
      grid->addWidget(beside, row, 2);
    }
  };
  addRow(page.lblSourceDestination[0], page.txtSource,
         new ButtonWidget(page.cmdBrowseFileFolder[0], frame));
  addRow(page.lblSourceDestination[1], page.txtDestination,
         new ButtonWidget(page.cmdBrowseFileFolder[1], frame));
  addRow(page.Label1, page.txtPassword, nullptr);
  addRow(page.Label2, page.txtReenter, nullptr);
  grid->addWidget(group({&page.optBit, &page.Option1}, QBoxLayout::LeftToRight, frame),
                  grid->rowCount(), 1, Qt::AlignLeft);
  return grid;
}

QLayout* FileSecurityTab::makeJob(filesecurity::FileSecurityPage& page, FrameWidget& frame) {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(new LinkWidget(page.lblAbountVexmora, frame));
  buttons->addStretch();
  buttons->addWidget(new ButtonWidget(page.cmdEncrypt, frame));
  buttons->addWidget(new ButtonWidget(page.cmdDecrypt, frame));

  auto* column = new QVBoxLayout;
  column->setSpacing(largeGap(*this));
  column->addWidget(new ProgressBarWidget(page.pgb, frame));
  column->addLayout(buttons);
  return column;
}

}  // namespace zelvane::qt
