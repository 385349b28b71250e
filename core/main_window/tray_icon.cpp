// The icon in the notification area: how the window comes back from it, and its menu.
#include <cmath>

#include "core/main_window/frm_main.h"
#include "platform/tray.h"
#include "platform/window_commands.h"

namespace zelvane::main_window {

using controls::Form;
using platform::Tray;

void frmMain::wireTray() {
  desktop_.tray.whenUsed([this](int mouseMessage) {
    mainPage.form.mouseUp.raise(mouseMessage * Form::kUnitsPerPixel);
  });
  desktop_.tray.whenLost([this] { keepWindowInReach(); });
  trayMenu.mnuShow.clicked.connect([this] { mnuShow_Click(); });
  trayMenu.mnuUnloadQuorvex.clicked.connect([this] { mnuUnloadQuorvex_Click(); });
}

void frmMain::Form_MouseUp(double x) {
  handler_([&] {
    switch (std::lround(x / Form::kUnitsPerPixel)) {
      case Tray::kLeftDoubleClicked:
        showNormal();
        break;
      case Tray::kRightReleased:
        desktop_.tray.showMenu(trayMenu.mnuQuorvex.name());
        break;
      default:
        break;
    }
  });
}

void frmMain::mnuShow_Click() {
  handler_([this] { showNormal(); });
}

// The icon goes before anything that the unload does, so that nobody clicks on it meanwhile.
void frmMain::mnuUnloadQuorvex_Click() {
  handler_([this] {
    removeTrayIcon();
    mainPage.form.unload(controls::UnloadMode::code);
  });
}

// In this order a hidden window is not seen minimised first.
void frmMain::showNormal() {
  mainPage.form.setState(Form::State::normal);
  mainPage.form.setVisible(true);
  desktop_.window.activate();
}

// The icon is gone, with the panel that it was in, and was the only way back to a hidden window.
void frmMain::keepWindowInReach() {
  handler_([this] {
    if (!mainPage.form.visible()) {
      mainPage.form.setState(Form::State::minimised);
      mainPage.form.setVisible(true);
    }
  });
}

}  // namespace zelvane::main_window
