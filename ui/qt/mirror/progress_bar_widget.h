// How far a job is, on the screen.
#pragma once

#include <QProgressBar>

#include "core/controls/progress_bar.h"

namespace zelvane::qt {

class ProgressBarWidget : public QProgressBar {
 public:
  ProgressBarWidget(controls::ProgressBar& control, QWidget& parent);
};

}  // namespace zelvane::qt
