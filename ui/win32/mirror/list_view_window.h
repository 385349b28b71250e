// A table of texts on the screen.
#pragma once

#include "core/controls/list_view.h"
#include "ui/win32/mirror/pane.h"

namespace zelvane::win32 {

class ListViewWindow : public Window {
 public:
  ListViewWindow(controls::ListView& control, Pane& parent);

  Size natural() const override;
  void place(const Area& area) override;

 private:
  void addColumns();
  void shareWidth();
  void showRows();

  const controls::ListView& control_;
};

}  // namespace zelvane::win32
