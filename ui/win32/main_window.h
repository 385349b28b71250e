// The program's window on the screen: every control of frmMain has its window here.
#pragma once

#include <map>

#include "core/controls/open_boxes.h"
#include "core/main_window/frm_main.h"
#include "ui/win32/about_box.h"
#include "ui/win32/mirror/form_window.h"

namespace zelvane::win32 {

class TabStripWindow;

// It holds no state and decides nothing. `window` and `look` outlive it; `boxes` stops the timers.
class MainWindow : public FormWindow {
 public:
  MainWindow(main_window::frmMain& window, controls::OpenBoxes& boxes, Look& look);

  // Ctrl+Tab and Ctrl+Page Down turn to the next page, with Shift or Page Up to the one before.
  bool onKey(const MSG& message) override;

  const AboutBox& aboutBox() const { return aboutBox_; }

 private:
  using Faces = std::map<const controls::Control*, Window*>;

  void layOutPages(main_window::frmMain& window);
  Faces facesOfControls();
  static void nameByLabels(main_window::frmMain& window, const Faces& faces);
  static void orderTabKeys(main_window::frmMain& window, const Faces& faces);
  static void number(main_window::frmMain& window, const Faces& faces);

  void startTimers(main_window::frmMain& window, controls::OpenBoxes& boxes);

  TabStripWindow* tabs_ = nullptr;
  AboutBox aboutBox_;
};

}  // namespace zelvane::win32
