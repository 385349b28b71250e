// A pop-up menu.
#pragma once

#include <QMenu>

#include "core/controls/menu.h"

namespace zelvane::qt {

// Whoever shows it, this program or the desktop's panel in its stead: a chosen item is clicked in a
// turn of its own, so that a panel that waits for its answer has it even if the program ends then.
// It lies in no window, because a screen reader looks for nothing in one that is hidden.
class MenuWidget : public QMenu {
 public:
  explicit MenuWidget(controls::Menu& control);

 private:
  void mirror(controls::MenuItem& item);
};

}  // namespace zelvane::qt
