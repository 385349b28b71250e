// The coloured log on the screen.
#pragma once

#include <cstddef>

#include "core/controls/rich_log.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

// Shows each piece once, when it comes; what is there is not touched again, however long the log
// grows. The end stays in view unless the user has scrolled away from it. A line break that the log
// begins with is in the text but takes hardly any room.
class RichLogWindow : public Window {
 public:
  RichLogWindow(controls::RichLog& control, Pane& parent);

  // The shade for a role that can be read on so bright a background.
  static COLORREF shade(controls::RichLog::Colour colour, COLORREF background);

  Size natural() const override;
  void onLookChanged() override;

 protected:
  LRESULT onMessage(UINT message, WPARAM word, LPARAM value) override;

 private:
  void startAnew();
  void showNewRuns();
  void append(const controls::RichLog::Run& run);
  bool isAtEnd() const;
  LONG twips(int pixels) const;

  const controls::RichLog& control_;
  std::size_t shown_ = 0;  // how many of the control's pieces are on the screen
};

}  // namespace zelvane::win32
