#include "ui/qt/mirror/list_view_widget.h"

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

namespace {

QStringList texts(const std::vector<std::string>& cells) {
  QStringList list;
  for (const std::string& cell : cells) {
    list.append(QString::fromStdString(cell));
  }
  return list;
}

}  // namespace

ListViewWidget::ListViewWidget(controls::ListView& control, QWidget& parent)
    : QTreeWidget(&parent) {
  setHeaderLabels(texts(control.columns()));
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  mirrorControl(control, *this);
  follow(control, *this, [this, &control] { showRows(control); });
}

// A control's rows are only added at the end or cleared all together.
void ListViewWidget::showRows(const controls::ListView& control) {
  const auto rows = static_cast<int>(control.rows().size());
  if (rows < topLevelItemCount()) {
    clear();
  }
  for (int row = topLevelItemCount(); row < rows; ++row) {
    addTopLevelItem(
        new QTreeWidgetItem(texts(control.rows()[static_cast<std::size_t>(row)].cells)));
  }
}

}  // namespace zelvane::qt
