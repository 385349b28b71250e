// What stands on which page, in reading order.
#include "core/main_window/frm_main.h"

namespace zelvane::main_window {

namespace {

using Column = std::vector<controls::Control*>;

void add(Column& column, cleaner::CleanerPage& page, std::span<const std::size_t> options) {
  for (const std::size_t index : options) {
    column.push_back(&page.chkSettings[index]);
  }
}

Column mainTab(MainPage& main, cleaner::CleanerPage& cleaner) {
  return {&main.Image2,
          &main.lblUser,
          &main.lblOS,
          &main.Label12,
          &main.Label13,
          &main.lblWebSite,
          &main.fileMain,
          &main.Picture1,
          &cleaner.cmdBasicClean,
          &cleaner.rtfMessage,
          &cleaner.txtHomePageURL,
          &cleaner.cmdHomePage,
          &cleaner.chkSettings[0],
          &main.chkStartup,
          &main.cmdClose};
}

Column cleanInternetTab(cleaner::CleanerPage& page) {
  Column column{&page.fmSettings};
  add(column, page, cleaner::kInternetOrder);
  // The box that acts at once stands between the things to erase and the script options.
  column.insert(column.end() - 2, &page.chkWebAddress);
  column.insert(column.end(), {&page.cmdDefaultSettings, &page.Command2});
  return column;
}

Column cleanComputerTab(cleaner::CleanerPage& page) {
  Column column;
  add(column, page, cleaner::kComputerOrder);
  column.insert(column.end(), {&page.cmdDefaultSettings1, &page.Command3});
  return column;
}

Column popupKillerTab(popupkiller::PopupPage& page) {
  return {&page.Frame1, &page.chkPopupKillerActivate, &page.vindows, &page.Label14, &page.Command1,
          &page.Label9};
}

Column fileSecurityTab(filesecurity::FileSecurityPage& page) {
  return {&page.fmDravik,
          &page.Option2,
          &page.Option3,
          &page.Option4,
          &page.Option5,
          &page.lblFileOrFolder,
          &page.lblSourceDestination[0],
          &page.txtSource,
          &page.cmdBrowseFileFolder[0],
          &page.lblSourceDestination[1],
          &page.txtDestination,
          &page.cmdBrowseFileFolder[1],
          &page.Label1,
          &page.txtPassword,
          &page.Label2,
          &page.txtReenter,
          &page.optBit,
          &page.Option1,
          &page.cmdEncrypt,
          &page.cmdDecrypt,
          &page.pgb,
          &page.lblAbountVexmora};
}

Column scheduleTab(scheduler::SchedulePage& page) {
  return {&page.fmSchedule,      &page.lblDays,
          &page.cmbDays,         &page.lblDate,
          &page.dtpScheduleDate, &page.lblTime,
          &page.dtpScheduleTime, &page.lblRunAfter,
          &page.txtHours,        &page.udnHours,
          &page.lblHours,        &page.lblLastRun,
          &page.lblLastRunTime,  &page.cmdDefaultSchedule,
          &page.cmdCancel,       &page.cmdApply};
}

}  // namespace

std::vector<std::vector<controls::Control*>> frmMain::tabPages() {
  return {mainTab(mainPage, cleanerPage),    cleanInternetTab(cleanerPage),
          cleanComputerTab(cleanerPage),     popupKillerTab(popupPage),
          fileSecurityTab(fileSecurityPage), scheduleTab(schedulePage)};
}

}  // namespace zelvane::main_window
