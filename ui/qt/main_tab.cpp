#include "ui/qt/main_tab.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/check_box_widget.h"
#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/frame_widget.h"
#include "ui/qt/mirror/label_widget.h"
#include "ui/qt/mirror/picture_widget.h"
#include "ui/qt/mirror/rich_log_widget.h"
#include "ui/qt/mirror/text_box_widget.h"

namespace zelvane::qt {

MainTab::MainTab(main_window::frmMain& window, QWidget& parent) : QWidget(&parent) {
  auto* column = new QVBoxLayout(this);
  setPageMargins(*column, *this);
  column->setSpacing(largeGap(*this));
  column->addLayout(makeHead(window.mainPage));
  column->addLayout(makeRun(window));
  column->addWidget(new RichLogWidget(window.cleanerPage.rtfMessage, *this), 1);
  column->addWidget(makeHomePage(window.cleanerPage));
  column->addLayout(makeFoot(window.mainPage));
}

QLayout* MainTab::makeHead(main_window::MainPage& page) {
  auto* title = new QLabel(this);
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  large.setBold(true);
  title->setFont(large);
  follow(page.form, *title, [&page, title] { title->setText(plainCaption(page.form.caption())); });

  auto* program = new QVBoxLayout;
  program->setSpacing(2);
  program->addStretch();
  program->addWidget(title);
  program->addWidget(new LinkWidget(page.lblWebSite, *this));
  program->addStretch();

  auto* address = new QHBoxLayout;
  address->addStretch();
  auto* addressLabel = new LabelWidget(page.Label12, *this);
  address->addWidget(addressLabel);
  address->addWidget(new LabelWidget(page.Label13, *this));
  // A heading without anything to head would look broken.
  follow(page.Label13, *addressLabel, [&page, addressLabel] {
    addressLabel->setVisible(page.Label12.visible() && !page.Label13.caption().empty());
  });

  auto* machine = new QVBoxLayout;
  machine->setSpacing(2);
  machine->addStretch();
  for (controls::Label* label : {&page.lblUser, &page.lblOS}) {
    machine->addWidget(new LabelWidget(*label, *this), 0, Qt::AlignRight);
  }
  machine->addLayout(address);
  machine->addStretch();

  auto* row = new QHBoxLayout;
  row->setSpacing(largeGap(*this));
  row->addWidget(new PictureWidget(page.Image2, fontMetrics().height() * 3, *this));
  row->addLayout(program);
  row->addStretch();
  row->addLayout(machine);
  return row;
}

QLayout* MainTab::makeRun(main_window::frmMain& window) {
  auto* frame = new FrameWidget(window.mainPage.fileMain, *this);
  frame->setAccessibleName("Picture");
  frame->body().addWidget(
      new PictureWidget(window.mainPage.Picture1, fontMetrics().height() * 3, *frame));

  auto* clean = new ButtonWidget(window.cleanerPage.cmdBasicClean, *this);
  QFont strong = clean->font();
  strong.setBold(true);
  strong.setPointSizeF(strong.pointSizeF() * 1.15);
  clean->setFont(strong);
  clean->setMinimumHeight(fontMetrics().height() * 3);
  clean->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

  auto* row = new QHBoxLayout;
  row->setSpacing(largeGap(*this));
  row->addWidget(frame);
  row->addWidget(clean, 1);
  return row;
}

QWidget* MainTab::makeHomePage(cleaner::CleanerPage& page) {
  auto* card = new Card(*this);
  auto* line = new QHBoxLayout;
  line->setSpacing(smallGap(*this));
  line->addWidget(new TextBoxWidget(page.txtHomePageURL, *card), 1);
  line->addWidget(new ButtonWidget(page.cmdHomePage, *card));
  card->add(*line);
  card->add(*new OptionRow(page.chkSettings[0], OptionRow::Harm::slight, *card));
  return card;
}

QLayout* MainTab::makeFoot(main_window::MainPage& page) {
  auto* row = new QHBoxLayout;
  row->addWidget(new CheckBoxWidget(page.chkStartup, *this));
  row->addStretch();
  row->addWidget(new ButtonWidget(page.cmdClose, *this));
  return row;
}

}  // namespace zelvane::qt
