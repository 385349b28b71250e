// The program's one working window: the pages of all subsystems, and every crossing between them.
#pragma once

#include <string_view>
#include <vector>

#include "about/about_page.h"
#include "about/frm_about.h"
#include "cleaner/cleaner_page.h"
#include "cleaner/cleaning_run.h"
#include "cleaner/home_page.h"
#include "cleaner/options_handlers.h"
#include "core/handler.h"
#include "core/main_window/main_page.h"
#include "core/main_window/tray_menu.h"
#include "core/settings_store.h"
#include "filesecurity/file_security_page.h"
#include "platform/desktop.h"
#include "popupkiller/alert_sound.h"
#include "popupkiller/events.h"
#include "popupkiller/popup_page.h"
#include "popupkiller/popup_switch.h"
#include "scheduler/schedule_page.h"
#include "scheduler/schedule_settings.h"
#include "scheduler/schedule_timer.h"

namespace zelvane::main_window {

// It is made once, loaded once, and from then on only hidden and shown again. Its unload ends the
// process. A shell mirrors its controls; it has no window of its own.
class frmMain {
 public:
  // The ports outlive the window.
  explicit frmMain(const platform::Desktop& desktop);

  MainPage mainPage;
  TrayMenu trayMenu;
  cleaner::CleanerPage cleanerPage;
  popupkiller::PopupPage popupPage;
  filesecurity::FileSecurityPage fileSecurityPage;
  scheduler::SchedulePage schedulePage;
  about::AboutPage aboutPage;

  // All of the above.
  std::vector<const controls::Page*> pages() const;

  // The control of that name on any page; nothing where there is none.
  controls::Control* find(std::string_view name) const;

  // Which of the controls stand on which page of `tabMain`, in reading order, which is also the
  // order in which the tab key visits them. Controls below the pages or without a face are on none.
  std::vector<std::vector<controls::Control*>> tabPages();

  // Loads the window and shows it.
  void show();

  void Form_Load();
  void Form_Activate();
  void Form_QueryUnload(bool& cancel, controls::UnloadMode mode);
  void Form_Unload();
  void Form_Terminate();

  // What was done with the icon in the notification area arrives as a button of the mouse that was
  // released over the window, at `x`: the number of the mouse message, in the window's units.
  void Form_MouseUp(double x);

  void mnuShow_Click();
  void mnuUnloadQuorvex_Click();
  void cmdClose_Click();
  void Label9_Click();
  void lblWebSite_Click();
  void mnuAbout_Click();

 private:
  // Where two subsystems meet, one line each.
  void wire();
  void wireTray();

  void showNormal();
  void keepWindowInReach();

  // The load, one step each, in this order. An empty one waits for its subsystem.
  void readAlertSoundPath();
  void showVersionLabel();
  void showMakersAddress();
  void installKeyboardHook();
  void showMachineNames();
  void loadPopupSwitch();
  void createBrowserTracker();
  void showAlertSoundPath();
  void registerContainerType();
  void loadCleaningOptions();
  void loadAutoCompleteBox();
  void reimposeHomePage();
  void addTrayIcon();
  void emptySchedulePickers();
  void showLocalAddress();
  void loadStartupBox();
  void loadSchedule();
  void markScheduleApplied();
  void showReady();
  void markPopupKillerItem();

  // The unload, likewise.
  void saveStartupBox();
  void applyStartupEntry();
  void removeTrayIcon();
  void releaseKeyboardHook();
  void endProcess();

  platform::Desktop desktop_;
  core::Handler handler_;
  core::SettingsStore settings_;
  bool loaded_ = false;
  bool unloading_ = false;
  // While it is clear a click on a cleaning option is not stored: the load itself is clicking.
  bool savingOptions_ = false;
  cleaner::OptionsHandlers options_;
  cleaner::HomePage homePage_;
  cleaner::CleaningRun run_;
  scheduler::ScheduleSettings scheduleSettings_;
  scheduler::ScheduleTimer scheduleTimer_;
  popupkiller::Events events_;
  popupkiller::PopupSwitch popupSwitch_;
  popupkiller::AlertSound alertSound_;
  about::frmAbout about_;
};

}  // namespace zelvane::main_window
