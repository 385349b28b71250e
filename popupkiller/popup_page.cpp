#include "popupkiller/popup_page.h"

namespace zelvane::popupkiller {

PopupPage::PopupPage() {
  chkPopupKillerActivate.placeIn(Frame1);
  vindows.placeIn(Frame1);
  Command1.placeIn(Frame1);
  Label14.placeIn(Frame1);
  Frame1.setDescription(
      "Stopping the windows that pages open comes with a later version; what is chosen here is "
      "kept.");
  vindows.setDescription("The browser windows that are open.");
}

}  // namespace zelvane::popupkiller
