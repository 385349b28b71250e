// The coloured log on the screen.
#pragma once

#include <QPlainTextEdit>
#include <cstddef>

#include "core/controls/rich_log.h"

namespace zelvane::qt {

// Shows each piece once, when it comes; what is there is not touched again, however long the log
// grows. The end stays in view unless the user has scrolled away from it. A line break that the log
// begins with is in the text but takes no room.
class RichLogWidget : public QPlainTextEdit {
 public:
  RichLogWidget(controls::RichLog& control, QWidget& parent);

  // The shade for a role that is easiest to read on the widget's own background.
  QColor shade(controls::RichLog::Colour colour) const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void forget();
  void showNewRuns();

  const controls::RichLog& control_;
  bool atEnd_ = true;      // the last line is in view, and those that follow shall be
  std::size_t shown_ = 0;  // how many of the control's pieces are on the screen
};

}  // namespace zelvane::qt
