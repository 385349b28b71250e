// The page "Popup Killer": the switch, the open browser windows, the alert sound.
#pragma once

#include <QWidget>

#include "popupkiller/popup_page.h"

namespace zelvane::qt {

class PopupKillerTab : public QWidget {
 public:
  PopupKillerTab(popupkiller::PopupPage& page, QWidget& parent);
};

}  // namespace zelvane::qt
