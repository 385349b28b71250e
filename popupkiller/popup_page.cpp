#include "popupkiller/popup_page.h"

namespace zelvane::popupkiller {

PopupPage::PopupPage() {
  chkPopupKillerActivate.placeIn(Frame1);
  vindows.placeIn(Frame1);
  Command1.placeIn(Frame1);
  Label14.placeIn(Frame1);
  vindows.setDescription("The browser windows that are open.");
}

}  // namespace zelvane::popupkiller
