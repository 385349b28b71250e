// The page "Clean Computer": what a run erases of the use of the computer.
#pragma once

#include <QWidget>

#include "cleaner/cleaner_page.h"

namespace zelvane::qt {

class CleanComputerTab : public QWidget {
 public:
  CleanComputerTab(cleaner::CleanerPage& page, QWidget& parent);
};

}  // namespace zelvane::qt
