// How the window goes, and the program with it.
#include <string>
#include <utility>

#include "core/main_window/frm_main.h"
#include "core/shell_tray.h"
#include "core/startup_entry.h"
#include "platform/process_end.h"
#include "platform/tray.h"

namespace zelvane::main_window {

// The close box only puts the window out of the way. It is hidden where the icon that brings it
// back can be seen; elsewhere a hidden window would be lost, and it stays minimised. Every other
// unload passes.
void frmMain::Form_QueryUnload(bool& cancel, controls::UnloadMode mode) {
  handler_([&] {
    if (mode == controls::UnloadMode::controlMenu) {
      addTrayIcon();
      mainPage.form.setState(controls::Form::State::minimised);
      if (desktop_.tray.isShown()) {
        mainPage.form.setVisible(false);
      }
      cancel = true;
    }
  });
}

// An error leaves the later steps undone, but the process ends all the same: with no window left
// nobody could end it.
//
// A window that was never loaded, a second start's, knows none of the choices that it would store.
// And one that is told to go once more, while it shows such an error, goes.
void frmMain::Form_Unload() {
  if (!loaded_ || std::exchange(unloading_, true)) {
    endProcess();
  }
  handler_([this] {
    saveStartupBox();
    applyStartupEntry();
    removeTrayIcon();
    releaseKeyboardHook();
  });
  endProcess();
}

// Ending is immediate, so this runs only where the process outlives its window.
void frmMain::Form_Terminate() {
  handler_([this] { removeTrayIcon(); });
}

void frmMain::saveStartupBox() {
  settings_.save(core::SettingsStore::Application::title, "Options", "StartUp",
                 std::to_string(mainPage.chkStartup.value()));
}

void frmMain::applyStartupEntry() {
  core::Registry::SetRunAtStartup(desktop_.registry, desktop_.identity,
                                  mainPage.chkStartup.checked());
}

void frmMain::removeTrayIcon() { core::ShellTray::RemoveIcon(desktop_.tray, mainPage.form); }

void frmMain::releaseKeyboardHook() {}

void frmMain::endProcess() { desktop_.process.end(); }

}  // namespace zelvane::main_window
