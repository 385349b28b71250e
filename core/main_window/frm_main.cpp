#include "core/main_window/frm_main.h"

#include "about/url_launcher.h"

namespace zelvane::main_window {

frmMain::frmMain(const platform::Desktop& desktop)
    : desktop_(desktop),
      handler_(desktop.dialogs, desktop.identity),
      settings_(desktop.settings, desktop.identity),
      options_(cleanerPage, settings_, desktop.registry, savingOptions_),
      homePage_(cleanerPage, settings_, desktop.registry),
      run_(cleanerPage,
           {.cmdApply = schedulePage.cmdApply,
            .cmdCancel = schedulePage.cmdCancel,
            .lblLastRunTime = schedulePage.lblLastRunTime,
            .tmrSchedule = schedulePage.tmrSchedule,
            .tmrMakeScehduleEnable = schedulePage.tmrMakeScehduleEnable,
            .tabMain = mainPage.tabMain,
            .lblStatus = mainPage.lblStatus},
           desktop, handler_),
      scheduleSettings_(schedulePage, settings_, desktop, handler_),
      scheduleTimer_(schedulePage, settings_, desktop.clock, handler_,
                     [this] { run_.cmdBasicClean_Click(); }),
      popupSwitch_(popupPage, trayMenu.mnuPoupKiller, events_, settings_),
      alertSound_(popupPage, desktop.files, desktop.dialogs, desktop.identity, handler_),
      about_(aboutPage, desktop.identity) {
  wire();
}

void frmMain::wire() {
  mainPage.form.activated.connect([this] { Form_Activate(); });
  mainPage.form.queryUnload.connect(
      [this](bool& cancel, controls::UnloadMode mode) { Form_QueryUnload(cancel, mode); });
  mainPage.form.unloaded.connect([this] { Form_Unload(); });
  mainPage.form.terminated.connect([this] { Form_Terminate(); });
  mainPage.form.mouseUp.connect([this](double x) { Form_MouseUp(x); });
  mainPage.cmdClose.clicked.connect([this] { cmdClose_Click(); });
  mainPage.lblWebSite.clicked.connect([this] { lblWebSite_Click(); });
  popupPage.Label9.clicked.connect([this] { Label9_Click(); });
  wireTray();
  trayMenu.mnuAbout.clicked.connect([this] { mnuAbout_Click(); });
  fileSecurityPage.lblAbountVexmora.clicked.connect([this] { mnuAbout_Click(); });

  // A page whose subsystem is not built yet cannot be used; its controls' own states stay as they
  // are designed.
  fileSecurityPage.fmDravik.setDescription("This page comes with a later version.");
  fileSecurityPage.fmDravik.setEnabled(false);
}

std::vector<const controls::Page*> frmMain::pages() const {
  return {&mainPage,         &trayMenu,     &cleanerPage, &popupPage,
          &fileSecurityPage, &schedulePage, &aboutPage};
}

controls::Control* frmMain::find(std::string_view name) const {
  for (const controls::Page* page : pages()) {
    if (controls::Control* control = page->find(name)) {
      return control;
    }
  }
  return nullptr;
}

void frmMain::Form_Activate() { mainPage.cmdClose.setVisible(true); }

void frmMain::cmdClose_Click() { mainPage.form.unload(controls::UnloadMode::code); }

void frmMain::Label9_Click() {
  about::GenFunc::OpenURL(desktop_, popupPage.Label9.caption(), "htm");
}

void frmMain::lblWebSite_Click() {
  about::GenFunc::OpenURL(desktop_, mainPage.lblWebSite.caption(), "htm");
}

void frmMain::mnuAbout_Click() {
  handler_([this] { about_.show(); });
}

}  // namespace zelvane::main_window
