#include <memory>
#include <utility>

#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/combo_box_window.h"
#include "ui/win32/mirror/date_picker_window.h"
#include "ui/win32/mirror/frame_window.h"
#include "ui/win32/mirror/label_window.h"
#include "ui/win32/mirror/text_box_window.h"
#include "ui/win32/mirror/up_down_window.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

namespace {

std::unique_ptr<Item> makeFields(scheduler::SchedulePage& controls, FrameWindow& frame) {
  auto& box = frame.make<TextBoxWindow>(controls.txtHours);
  auto hours = std::make_unique<Box>(Box::Lie::row, Gap::none, frame.look());
  hours->add(box, {.grows = true});
  hours->add(frame.make<UpDownWindow>(controls.udnHours, box));

  auto fields = std::make_unique<FieldTable>(FieldTable::Fields::natural, frame.look());
  const auto add = [&](controls::Label& label, std::unique_ptr<Item> field,
                       std::unique_ptr<Item> beside = nullptr) {
    fields->addRow(frame.make<LabelWindow>(label), std::move(field), std::move(beside));
  };
  add(controls.lblDays, itemOf(frame.make<ComboBoxWindow>(controls.cmbDays)));
  add(controls.lblDate, itemOf(frame.make<DatePickerWindow>(controls.dtpScheduleDate)));
  add(controls.lblTime, itemOf(frame.make<DatePickerWindow>(controls.dtpScheduleTime)));
  add(controls.lblRunAfter, std::move(hours), itemOf(frame.make<LabelWindow>(controls.lblHours)));
  add(controls.lblLastRun, itemOf(frame.make<LabelWindow>(controls.lblLastRunTime)));
  return fields;
}

}  // namespace

void makeScheduleTab(scheduler::SchedulePage& controls, Pane& page) {
  page.body().setMargins(Gap::large);
  auto& frame = page.make<FrameWindow>(controls.fmSchedule);
  page.body().add(frame, {.grows = true});
  frame.body().add(makeFields(controls, frame), {});
  frame.body().addSpace();

  Box& buttons = frame.body().addBox(Box::Lie::row, Gap::small);
  buttons.add(frame.make<ButtonWindow>(controls.cmdDefaultSchedule));
  buttons.addSpace();
  buttons.add(frame.make<ButtonWindow>(controls.cmdCancel));
  buttons.add(frame.make<ButtonWindow>(controls.cmdApply));
}

}  // namespace zelvane::win32
