#include "ui/qt/mirror/progress_bar_widget.h"

#include <cmath>

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

ProgressBarWidget::ProgressBarWidget(controls::ProgressBar& control, QWidget& parent)
    : QProgressBar(&parent) {
  setRange(0, 1000);
  mirrorControl(control, *this);
  follow(control, *this, [this, &control] {
    setValue(static_cast<int>(std::lround(control.fraction() * maximum())));
    setTextVisible(control.fraction() > 0);
  });
}

}  // namespace zelvane::qt
