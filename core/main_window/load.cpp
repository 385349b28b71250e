// The window's load: every subsystem is brought into its start state, in a fixed order.
#include <string>

#include "core/machine_facts.h"
#include "core/main_window/frm_main.h"
#include "core/numbers.h"
#include "core/shell_tray.h"
#include "core/version_label.h"
#include "platform/identity.h"
#include "platform/machine.h"

namespace zelvane::main_window {

using Application = core::SettingsStore::Application;

void frmMain::show() {
  Form_Load();
  mainPage.form.setVisible(true);
}

// A failing step ends the load: the steps after it are skipped, and their controls keep their
// designed values.
void frmMain::Form_Load() {
  loaded_ = true;
  handler_([this] {
    readAlertSoundPath();
    showVersionLabel();
    showMakersAddress();
    installKeyboardHook();
    showMachineNames();
    loadPopupSwitch();
    createBrowserTracker();
    showAlertSoundPath();
    registerContainerType();
    loadCleaningOptions();
    loadAutoCompleteBox();
    reimposeHomePage();
    addTrayIcon();
    emptySchedulePickers();
    showLocalAddress();
    loadStartupBox();
    loadSchedule();
    markScheduleApplied();
    showReady();
    markPopupKillerItem();
  });
}

void frmMain::readAlertSoundPath() { alertSound_.readPath(); }

void frmMain::showVersionLabel() {
  const std::string label = core::versionLabel(desktop_.identity.version());
  mainPage.form.setCaption(label);
  trayMenu.mnuShow.setCaption(label);
}

void frmMain::showMakersAddress() {
  mainPage.lblWebSite.setCaption(desktop_.identity.version().makerAddress);
  popupPage.Label9.setCaption(desktop_.identity.version().makerAddress);
}

void frmMain::installKeyboardHook() {}

void frmMain::showMachineNames() {
  mainPage.lblUser.setCaption(core::userLine(desktop_.machine));
  mainPage.lblOS.setCaption(core::OS::GetOSName(desktop_.machine));
}

void frmMain::loadPopupSwitch() { popupSwitch_.load(); }

void frmMain::createBrowserTracker() {}

void frmMain::showAlertSoundPath() { alertSound_.showPath(); }

void frmMain::registerContainerType() {}

// The defaults come first and the stored states over them, so that an option which was never stored
// has its default. Setting the boxes clicks them; the clear flag keeps those clicks from writing
// the defaults over what is stored.
void frmMain::loadCleaningOptions() {
  savingOptions_ = false;
  options_.cmdDefaultSettings_Click();
  options_.loadOptions();
}

void frmMain::loadAutoCompleteBox() { options_.loadWebAddress(); }

void frmMain::reimposeHomePage() {
  homePage_.reimpose();
  savingOptions_ = true;
}

void frmMain::addTrayIcon() {
  core::ShellTray::ShowIcon(desktop_.tray, mainPage.form,
                            core::versionLabel(desktop_.identity.version()));
}

void frmMain::emptySchedulePickers() { scheduleSettings_.emptyPickers(); }

void frmMain::showLocalAddress() {
  mainPage.Label13.setCaption(desktop_.machine.localAddress().value_or(""));
}

void frmMain::loadStartupBox() {
  mainPage.chkStartup.setValue(
      core::toInteger(settings_.load(Application::title, "Options", "StartUp", "0")));
}

void frmMain::loadSchedule() { scheduleSettings_.load(); }

// Loading the schedule has edited it; there is nothing to apply yet.
void frmMain::markScheduleApplied() { scheduleSettings_.markApplied(); }

void frmMain::showReady() { mainPage.lblStatus.setCaption("Ready"); }

void frmMain::markPopupKillerItem() { popupSwitch_.markMenuItem(); }

}  // namespace zelvane::main_window
