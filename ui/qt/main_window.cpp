#include "ui/qt/main_window.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/qt/clean_computer_tab.h"
#include "ui/qt/clean_internet_tab.h"
#include "ui/qt/file_security_tab.h"
#include "ui/qt/layouts.h"
#include "ui/qt/main_tab.h"
#include "ui/qt/mirror/follow.h"
#include "ui/qt/mirror/label_widget.h"
#include "ui/qt/mirror/picture_widget.h"
#include "ui/qt/mirror/tab_strip_widget.h"
#include "ui/qt/mirror/timer_mirror.h"
#include "ui/qt/popup_killer_tab.h"
#include "ui/qt/schedule_tab.h"

namespace zelvane::qt {

namespace {

// Gives the widget the name that a screen reader says, and those parts of it that are no controls.
void nameAloud(QWidget& widget, const QString& name) {
  widget.setAccessibleName(name);
  for (QWidget* part : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (part->objectName().isEmpty()) {
      part->setAccessibleName(name);
    }
  }
}

}  // namespace

MainWindow::MainWindow(main_window::frmMain& window, OpenBoxes& boxes)
    : FormWidget(window.mainPage.form, nullptr, Qt::Window) {
  setWindowIcon(icon(controls::Picture::Image::programIcon));
  layOut(window);
  nameByLabels(window);
  orderTabKeys(window);
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      if (auto* timer = dynamic_cast<controls::Timer*>(control)) {
        new TimerMirror(*timer, boxes, *this);
      }
    }
  }
}

void MainWindow::layOut(main_window::frmMain& window) {
  auto* tabs = new TabStripWidget(window.mainPage.tabMain, *this);
  tabs->setDocumentMode(true);
  for (QWidget* page : std::initializer_list<QWidget*>{
           new MainTab(window, *tabs), new CleanInternetTab(window.cleanerPage, *tabs),
           new CleanComputerTab(window.cleanerPage, *tabs),
           new PopupKillerTab(window.popupPage, *tabs),
           new FileSecurityTab(window.fileSecurityPage, *tabs),
           new ScheduleTab(window.schedulePage, *tabs)}) {
    tabs->addPage(*scrollable(*page));
  }

  auto* status = new LineWidget(window.mainPage.lblStatus, *this);
  status->setMargin(smallGap(*this));

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(tabs, 1);
  column->addWidget(status);
}

void MainWindow::nameByLabels(main_window::frmMain& window) {
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      auto* label = dynamic_cast<controls::Label*>(control);
      if (label == nullptr || label->buddy() == nullptr) {
        continue;
      }
      auto* widget = findChild<QLabel*>(QString::fromStdString(label->name()));
      auto* buddy = findChild<QWidget*>(QString::fromStdString(label->buddy()->name()));
      widget->setBuddy(buddy);
      follow(*label, *buddy, [label, buddy] { nameAloud(*buddy, plainCaption(label->caption())); });
    }
  }
}

void MainWindow::orderTabKeys(main_window::frmMain& window) {
  QWidget* before = nullptr;
  for (const auto& page : window.tabPages()) {
    for (const controls::Control* control : page) {
      auto* widget = findChild<QWidget*>(QString::fromStdString(control->name()));
      if (widget == nullptr) {
        continue;
      }
      if (before != nullptr) {
        setTabOrder(before, widget);
      }
      before = widget;
    }
  }
}

}  // namespace zelvane::qt
