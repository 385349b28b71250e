// The page "Clean Internet": what a run erases of the browsers, and what it forces on them.
#pragma once

#include <QWidget>

#include "cleaner/cleaner_page.h"

namespace zelvane::qt {

class CleanInternetTab : public QWidget {
 public:
  CleanInternetTab(cleaner::CleanerPage& page, QWidget& parent);
};

}  // namespace zelvane::qt
