#include "ui/qt/mirror/tab_strip_widget.h"

#include "ui/qt/mirror/follow.h"

namespace zelvane::qt {

TabStripWidget::TabStripWidget(controls::TabStrip& control, QWidget& parent)
    : QTabWidget(&parent), control_(control) {
  setAccessibleName("Pages");
  mirrorControl(control, *this);
  follow(control, *this, [this, &control] { setCurrentIndex(control.tab()); });
  connect(this, &QTabWidget::currentChanged, this, [this, &control](int tab) {
    // Pages that are still being added say nothing about the user's wish.
    if (count() == static_cast<int>(control.captions().size())) {
      control.setTab(tab);
    }
  });
}

void TabStripWidget::addPage(QWidget& page) {
  const auto next = static_cast<std::size_t>(count());
  addTab(&page, QString::fromStdString(control_.captions().at(next)));
  setCurrentIndex(control_.tab());
}

}  // namespace zelvane::qt
