// A table of texts on the screen.
#pragma once

#include <QTreeWidget>

#include "core/controls/list_view.h"

namespace zelvane::qt {

class ListViewWidget : public QTreeWidget {
 public:
  ListViewWidget(controls::ListView& control, QWidget& parent);

 private:
  void showRows(const controls::ListView& control);
};

}  // namespace zelvane::qt
