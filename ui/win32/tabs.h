// The six pages of the window: what stands where on each.
#pragma once

#include "core/main_window/frm_main.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Each makes the faces of its page's controls in `page` and says where they go.
void makeMainTab(main_window::frmMain& window, Pane& page);
void makeCleanInternetTab(cleaner::CleanerPage& controls, Pane& page);
void makeCleanComputerTab(cleaner::CleanerPage& controls, Pane& page);
void makePopupKillerTab(popupkiller::PopupPage& controls, Pane& page);
void makeFileSecurityTab(filesecurity::FileSecurityPage& controls, Pane& page);
void makeScheduleTab(scheduler::SchedulePage& controls, Pane& page);

}  // namespace zelvane::win32
