// The program's window on the screen: every control of frmMain has its widget here.
#pragma once

#include <QHash>
#include <QString>

#include "core/controls/open_boxes.h"
#include "core/main_window/frm_main.h"
#include "ui/qt/mirror/form_widget.h"
#include "ui/qt/mirror/menu_widget.h"

namespace zelvane::qt {

// It holds no state and decides nothing. `window` outlives it; `boxes` stops the timers.
class MainWindow : public FormWidget {
 public:
  MainWindow(main_window::frmMain& window, controls::OpenBoxes& boxes);

  // Of the icon in the notification area.
  QMenu& trayMenu() { return trayMenu_; }

 private:
  // The widgets of controls, by the controls' names.
  using Widgets = QHash<QString, QWidget*>;

  void layOut(main_window::frmMain& window);
  Widgets widgetsByName() const;
  void nameByLabels(main_window::frmMain& window, const Widgets& widgets);
  void orderTabKeys(main_window::frmMain& window, const Widgets& widgets);

  MenuWidget trayMenu_;
};

}  // namespace zelvane::qt
