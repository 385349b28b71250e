#include <initializer_list>

#include "ui/win32/layouts.h"
#include "ui/win32/mirror/button_window.h"
#include "ui/win32/mirror/check_box_window.h"
#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/frame_window.h"
#include "ui/win32/mirror/label_window.h"
#include "ui/win32/mirror/note.h"
#include "ui/win32/mirror/picture_window.h"
#include "ui/win32/mirror/rich_log_window.h"
#include "ui/win32/mirror/spoken_name.h"
#include "ui/win32/mirror/text_box_window.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

namespace {

constexpr int kPictureSide = 48;

void addMachine(main_window::MainPage& controls, Box& row, Pane& page) {
  Box& machine = row.addBox(Box::Lie::column, Gap::tiny, {.across = Across::centre});
  for (controls::Label* label : {&controls.lblUser, &controls.lblOS}) {
    machine.add(page.make<LabelWindow>(*label), {.across = Across::end});
  }
  Box& address = machine.addBox(Box::Lie::row, Gap::small, {.across = Across::end});
  auto& label = page.make<LabelWindow>(controls.Label12);
  address.add(label);
  address.add(page.make<LabelWindow>(controls.Label13));
  // A heading without anything to head would look broken.
  follow(controls.Label13, label, [&controls, &label] {
    label.setShown(controls.Label12.visible() && !controls.Label13.caption().empty());
  });
}

void addHead(main_window::MainPage& controls, Pane& page) {
  Box& row = page.body().addBox(Box::Lie::row, Gap::large);
  row.add(page.make<PictureWindow>(controls.Image2, kPictureSide), {.across = Across::centre});
  Box& program = row.addBox(Box::Lie::column, Gap::tiny, {.across = Across::centre});
  auto& title = page.make<Heading>(Font::title);
  program.add(title, {.across = Across::start});
  program.add(page.make<LinkWindow>(controls.lblWebSite), {.across = Across::start});
  row.addSpace();
  addMachine(controls, row, page);
  follow(controls.form, title, [&controls, &title] {
    title.setCaption(plainCaption(controls.form.caption()));
    title.askForLayout();
  });
}

void addRun(main_window::frmMain& window, Pane& page) {
  Box& row = page.body().addBox(Box::Lie::row, Gap::large);
  auto& frame = page.make<FrameWindow>(window.mainPage.fileMain);
  setSpokenName(frame, L"Picture");
  frame.body().add(frame.make<PictureWindow>(window.mainPage.Picture1, kPictureSide));
  row.add(frame);
  auto& clean = page.make<ButtonWindow>(window.cleanerPage.cmdBasicClean);
  clean.setFont(Font::strong);
  row.add(clean, {.grows = true});
}

void addHomePage(cleaner::CleanerPage& controls, Pane& page) {
  Card& card = addCard(page.body(), page.look());
  Box& line = addCardRow(card, Box::Lie::row, Gap::small);
  line.add(page.make<TextBoxWindow>(controls.txtHomePageURL),
           {.across = Across::centre, .grows = true});
  line.add(page.make<ButtonWindow>(controls.cmdHomePage), {.across = Across::centre});
  addOption(card, controls.chkSettings[0], Harm::slight, page);
}

}  // namespace

void makeMainTab(main_window::frmMain& window, Pane& page) {
  page.body().setMargins(Gap::large);
  addHead(window.mainPage, page);
  addRun(window, page);
  page.body().add(page.make<RichLogWindow>(window.cleanerPage.rtfMessage), {.grows = true});
  addHomePage(window.cleanerPage, page);

  Box& foot = page.body().addBox(Box::Lie::row, Gap::small);
  foot.add(page.make<CheckBoxWindow>(window.mainPage.chkStartup), {.across = Across::centre});
  foot.addSpace();
  foot.add(page.make<ButtonWindow>(window.mainPage.cmdClose));
}

}  // namespace zelvane::win32
