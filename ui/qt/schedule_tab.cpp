#include "ui/qt/schedule_tab.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/qt/layouts.h"
#include "ui/qt/mirror/button_widget.h"
#include "ui/qt/mirror/combo_box_widget.h"
#include "ui/qt/mirror/date_picker_widget.h"
#include "ui/qt/mirror/frame_widget.h"
#include "ui/qt/mirror/label_widget.h"
#include "ui/qt/mirror/text_box_widget.h"
#include "ui/qt/mirror/up_down_widget.h"

namespace zelvane::qt {

ScheduleTab::ScheduleTab(scheduler::SchedulePage& page, QWidget& parent) : QWidget(&parent) {
  auto* frame = new FrameWidget(page.fmSchedule, *this);
  frame->body().setSpacing(largeGap(*this));
  frame->body().addLayout(makeFields(page, *frame));
  frame->body().addStretch();
  frame->body().addLayout(makeButtons(page, *frame));

  auto* column = new QVBoxLayout(this);
  setPageMargins(*column, *this);
  column->addWidget(frame);
}

QLayout* ScheduleTab::makeFields(scheduler::SchedulePage& page, FrameWidget& frame) {
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(smallGap(*this));
  grid->setColumnStretch(3, 1);
  const auto addRow = [&](controls::Label& label, QWidget* field, QWidget* beside) {
    const int row = grid->rowCount();
    grid->addWidget(new LabelWidget(label, frame), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(field, row, 1);
    if (beside != nullptr) {
      grid->addWidget(beside, row, 2);
    }
  };
  auto* hours = new TextBoxWidget(page.txtHours, frame);
  addRow(page.lblDays, new ComboBoxWidget(page.cmbDays, frame), nullptr);
  addRow(page.lblDate, new DatePickerWidget(page.dtpScheduleDate, frame), nullptr);
  addRow(page.lblTime, new DatePickerWidget(page.dtpScheduleTime, frame), nullptr);
  addRow(page.lblRunAfter, new UpDownWidget(page.udnHours, *hours, frame),
         new LabelWidget(page.lblHours, frame));
  addRow(page.lblLastRun, new LabelWidget(page.lblLastRunTime, frame), nullptr);
  return grid;
}

QLayout* ScheduleTab::makeButtons(scheduler::SchedulePage& page, FrameWidget& frame) {
  auto* row = new QHBoxLayout;
  row->addWidget(new ButtonWidget(page.cmdDefaultSchedule, frame));
  row->addStretch();
  row->addWidget(new ButtonWidget(page.cmdCancel, frame));
  row->addWidget(new ButtonWidget(page.cmdApply, frame));
  return row;
}

}  // namespace zelvane::qt
