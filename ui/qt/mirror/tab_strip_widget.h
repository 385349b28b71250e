// The row of tabs and the pages behind it on the screen.
#pragma once

#include <QTabWidget>

#include "core/controls/tab_strip.h"

namespace zelvane::qt {

class TabStripWidget : public QTabWidget {
 public:
  TabStripWidget(controls::TabStrip& control, QWidget& parent);

  // The page of the next caption.
  void addPage(QWidget& page);

 private:
  const controls::TabStrip& control_;
};

}  // namespace zelvane::qt
