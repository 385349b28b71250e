// The page "Main": the program and the machine, the run and its log, the start page.
#pragma once

#include <QWidget>

#include "core/main_window/frm_main.h"

namespace zelvane::qt {

class MainTab : public QWidget {
 public:
  MainTab(main_window::frmMain& window, QWidget& parent);

 private:
  QLayout* makeHead(main_window::MainPage& page);
  QLayout* makeRun(main_window::frmMain& window);
  QWidget* makeHomePage(cleaner::CleanerPage& page);
  QLayout* makeFoot(main_window::MainPage& page);
};

}  // namespace zelvane::qt
