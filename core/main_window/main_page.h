// The controls of the window that belong to no subsystem: the tab strip, the status line, and what
// the "Main" page says about the machine.
#pragma once

#include "core/controls/button.h"
#include "core/controls/check_box.h"
#include "core/controls/component.h"
#include "core/controls/form.h"
#include "core/controls/frame.h"
#include "core/controls/label.h"
#include "core/controls/picture.h"
#include "core/controls/tab_strip.h"

namespace zelvane::main_window {

struct MainPage : controls::Page {
  MainPage();

  controls::Form form{*this, "frmMain", "Zelvane"};
  controls::TabStrip tabMain{
      *this,
      "tabMain",
      {"Main", "Clean Internet", "Clean Computer", "Popup Killer", "File Security", "Schedule"}};
  controls::Label lblStatus{*this, "lblStatus", ""};

  controls::Picture Image2{*this, "Image2", controls::Picture::Image::programIcon};
  controls::Label lblUser{*this, "lblUser", ""};
  controls::Label lblOS{*this, "lblOS", ""};
  controls::Label Label12{*this, "Label12", "Your LAN IP address is:"};
  controls::Label Label13{*this, "Label13", ""};
  controls::Label lblWebSite{*this, "lblWebSite", ""};
  controls::Component Winsock1{*this, "Winsock1"};
  controls::Frame fileMain{*this, "fileMain", ""};
  controls::Picture Picture1{*this, "Picture1", controls::Picture::Image::broom};
  controls::CheckBox chkStartup{*this, "chkStartup", "Run on Startup"};
  controls::Button cmdClose{*this, "cmdClose", "E&xit"};
};

}  // namespace zelvane::main_window
