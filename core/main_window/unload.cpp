// How the window goes, and the program with it.
#include <string>

#include "core/main_window/frm_main.h"
#include "platform/process_end.h"

namespace zelvane::main_window {

// The close box only puts the window out of the way. Until there is an icon in the notification
// area to bring it back, it is minimised, because a hidden window would be lost. Every other unload
// passes.
void frmMain::Form_QueryUnload(bool& cancel, controls::UnloadMode mode) {
  handler_([&] {
    if (mode == controls::UnloadMode::controlMenu) {
      mainPage.form.setState(controls::Form::State::minimised);
      cancel = true;
    }
  });
}

// An error leaves the later steps undone, but the process ends all the same: with no window left
// nobody could end it.
void frmMain::Form_Unload() {
  handler_([this] {
    saveStartupBox();
    applyStartupEntry();
    removeTrayIcon();
    releaseKeyboardHook();
  });
  endProcess();
}

void frmMain::saveStartupBox() {
  settings_.save(core::SettingsStore::Application::title, "Options", "StartUp",
                 std::to_string(mainPage.chkStartup.value()));
}

void frmMain::applyStartupEntry() {}

void frmMain::removeTrayIcon() {}

void frmMain::releaseKeyboardHook() {}

void frmMain::endProcess() { desktop_.process.end(); }

}  // namespace zelvane::main_window
