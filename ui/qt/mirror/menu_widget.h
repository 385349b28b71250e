// A pop-up menu.
#pragma once

#include <QMenu>

#include "core/controls/menu.h"

namespace zelvane::qt {

// Whoever shows it, this program or the desktop's panel in its stead: a chosen item is clicked in a
// turn of its own, so that a panel that waits for its answer has it even if the program ends then.
class MenuWidget : public QMenu {
 public:
  MenuWidget(controls::Menu& control, QWidget& parent);

 private:
  void mirror(controls::MenuItem& item);
};

}  // namespace zelvane::qt
