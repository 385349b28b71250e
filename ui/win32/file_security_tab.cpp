#include <memory>
#include <vector>

#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/frame_window.h"
#include "ui/win32/mirror/label_window.h"
#include "ui/win32/mirror/option_button_window.h"
#include "ui/win32/mirror/progress_bar_window.h"
#include "ui/win32/mirror/text_box_window.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

namespace {

// The buttons of one group.
void addGroup(Box& box, const std::vector<controls::OptionButton*>& buttons, FrameWindow& frame) {
  std::vector<OptionButtonWindow*> windows;
  for (controls::OptionButton* button : buttons) {
    windows.push_back(&frame.make<OptionButtonWindow>(*button));
    box.add(*windows.back(), {.across = Across::start});
  }
  groupTogether(buttons, windows);
}

void addChoices(filesecurity::FileSecurityPage& controls, FrameWindow& frame) {
  Box& row = frame.body().addBox(Box::Lie::row, Gap::wide);
  Box& direction = row.addBox(Box::Lie::column, Gap::tiny, {.across = Across::start});
  addGroup(direction, {&controls.Option2, &controls.Option3}, frame);
  Box& unit = row.addBox(Box::Lie::column, Gap::tiny);
  addGroup(unit, {&controls.Option4, &controls.Option5}, frame);
  unit.add(frame.make<LabelWindow>(controls.lblFileOrFolder), {.across = Across::start});
  row.addSpace();
}

void addFields(filesecurity::FileSecurityPage& controls, FrameWindow& frame) {
  auto fields = std::make_unique<FieldTable>(FieldTable::Fields::grow, frame.look());
  const auto add = [&](controls::Label& label, controls::TextBox& box, controls::Button* beside) {
    auto& labelWindow = frame.make<LabelWindow>(label);
    auto& boxWindow = frame.make<TextBoxWindow>(box);
    fields->addRow(labelWindow, itemOf(boxWindow),
                   beside == nullptr ? nullptr : itemOf(frame.make<ButtonWindow>(*beside)));
  };
  add(controls.lblSourceDestination[0], controls.txtSource, &controls.cmdBrowseFileFolder[0]);
  add(controls.lblSourceDestination[1], controls.txtDestination, &controls.cmdBrowseFileFolder[1]);
  add(controls.Label1, controls.txtPassword, nullptr);
  add(controls.Label2, controls.txtReenter, nullptr);
  auto keySize = std::make_unique<Box>(Box::Lie::row, Gap::large, frame.look());
  addGroup(*keySize, {&controls.optBit, &controls.Option1}, frame);
  fields->addRow(std::move(keySize));
  frame.body().add(std::move(fields), {});
}

void addJob(filesecurity::FileSecurityPage& controls, FrameWindow& frame) {
  frame.body().add(frame.make<ProgressBarWindow>(controls.pgb));
  Box& buttons = frame.body().addBox(Box::Lie::row, Gap::small);
  buttons.add(frame.make<LinkWindow>(controls.lblAbountVexmora), {.across = Across::centre});
  buttons.addSpace();
  buttons.add(frame.make<ButtonWindow>(controls.cmdEncrypt));
  buttons.add(frame.make<ButtonWindow>(controls.cmdDecrypt));
}

}  // namespace

void makeFileSecurityTab(filesecurity::FileSecurityPage& controls, Pane& page) {
  page.body().setMargins(Gap::large);
  auto& frame = page.make<FrameWindow>(controls.fmDravik);
  page.body().add(frame, {.grows = true});
  addChoices(controls, frame);
  addFields(controls, frame);
  frame.body().addSpace();
  addJob(controls, frame);
}

}  // namespace zelvane::win32
