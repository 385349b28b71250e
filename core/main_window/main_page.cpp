#include "core/main_window/main_page.h"

namespace zelvane::main_window {

MainPage::MainPage() {
  Picture1.placeIn(fileMain);
  chkStartup.setDescription("Takes effect when you exit.");
  cmdClose.setDescription("Ends the program. The window's close box only puts it out of the way.");
}

}  // namespace zelvane::main_window
