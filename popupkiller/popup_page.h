// The controls of the "Popup Killer" page.
#pragma once

#include "core/controls/button.h"
#include "core/controls/check_box.h"
#include "core/controls/file_dialog.h"
#include "core/controls/frame.h"
#include "core/controls/label.h"
#include "core/controls/list_view.h"

namespace zelvane::popupkiller {

struct PopupPage : controls::Page {
  PopupPage();

  controls::Frame Frame1{*this, "Frame1", ""};
  controls::CheckBox chkPopupKillerActivate{*this, "chkPopupKillerActivate",
                                            "Activate Popup Killer"};
  // The open browser windows.
  controls::ListView vindows{*this, "vindows", {"Location", "URL", "Time"}};
  controls::Button Command1{*this, "Command1", "Change Wav File"};
  // The path of the alert sound.
  controls::Label Label14{*this, "Label14", ""};
  controls::FileDialog CommonDialog1{*this, "CommonDialog1"};
  // The maker's web address.
  controls::Label Label9{*this, "Label9", ""};
};

}  // namespace zelvane::popupkiller
