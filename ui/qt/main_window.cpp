#include "ui/qt/main_window.h"

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/qt/about_box.h"
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

// What lets every page be seen whole, and every tab.
QSize roomFor(const QTabWidget& tabs) {
  QSize room = tabs.tabBar()->sizeHint();
  for (int page = 0; page < tabs.count(); ++page) {
    const auto* area = static_cast<const QScrollArea*>(tabs.widget(page));
    room = room.expandedTo(area->widget()->sizeHint());
  }
  for (int page = 0; page < tabs.count(); ++page) {
    const QWidget* content = static_cast<const QScrollArea*>(tabs.widget(page))->widget();
    if (content->hasHeightForWidth()) {
      room.setHeight(std::max(room.height(), content->heightForWidth(room.width())));
    }
  }
  return room;
}

// The box inside an up-down has its place with it. Ordering it as well makes the toolkit's chain a
// loop that leaves out the rest, in which the next press of the tab key never ends.
bool isInsideItsProxy(const QWidget& widget) {
  return widget.focusProxy() != nullptr && widget.focusProxy()->isAncestorOf(&widget);
}

bool isTabStop(const QWidget& widget) {
  const QWidget& stop = widget.focusProxy() == nullptr ? widget : *widget.focusProxy();
  return (stop.focusPolicy() & Qt::TabFocus) != 0 && !isInsideItsProxy(widget);
}

}  // namespace

MainWindow::MainWindow(main_window::frmMain& window, controls::OpenBoxes& boxes)
    : FormWidget(window.mainPage.form, nullptr, Qt::Window), trayMenu_(window.trayMenu.mnuQuorvex) {
  setWindowIcon(icon(controls::Picture::Image::programIcon));
  layOut(window);
  const Widgets widgets = widgetsByName();
  nameByLabels(window, widgets);
  orderTabKeys(window, widgets);
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      if (auto* timer = dynamic_cast<controls::Timer*>(control)) {
        new TimerMirror(*timer, boxes, window.mainPage.form, *this);
      }
    }
  }
  new AboutBox(window.aboutPage, boxes, window.mainPage.form, *this);
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
  status->setContentsMargins(largeGap(*this), smallGap(*this), largeGap(*this), smallGap(*this));

  auto* body = new QWidget(this);
  setCentralWidget(body);
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(tabs, 1);
  column->addWidget(status);

  const QSize chrome(0, tabs->tabBar()->sizeHint().height() + status->sizeHint().height());
  resize((roomFor(*tabs) + chrome).boundedTo(screen()->availableSize() * 0.9));
}

MainWindow::Widgets MainWindow::widgetsByName() const {
  Widgets widgets;
  for (QWidget* widget : findChildren<QWidget*>()) {
    widgets.insert(widget->objectName(), widget);
  }
  return widgets;
}

void MainWindow::nameByLabels(main_window::frmMain& window, const Widgets& widgets) {
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      auto* label = dynamic_cast<controls::Label*>(control);
      if (label == nullptr || label->buddy() == nullptr) {
        continue;
      }
      auto* widget = qobject_cast<QLabel*>(widgets[QString::fromStdString(label->name())]);
      QWidget* buddy = widgets[QString::fromStdString(label->buddy()->name())];
      widget->setBuddy(buddy);
      follow(*label, *buddy, [label, buddy] { nameAloud(*buddy, plainCaption(label->caption())); });
    }
  }
}

void MainWindow::orderTabKeys(main_window::frmMain& window, const Widgets& widgets) {
  QWidget* before = nullptr;
  for (const auto& page : window.tabPages()) {
    for (const controls::Control* control : page) {
      QWidget* widget = widgets[QString::fromStdString(control->name())];
      // An order with a label in it, which is no stop, would be passed over by the toolkit.
      if (widget == nullptr || !isTabStop(*widget)) {
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
