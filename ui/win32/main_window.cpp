#include "ui/win32/main_window.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "ui/win32/mirror/follow.h"
#include "ui/win32/mirror/label_window.h"
#include "ui/win32/mirror/spoken_name.h"
#include "ui/win32/mirror/tab_strip_window.h"
#include "ui/win32/mirror/timer_mirror.h"
#include "ui/win32/tabs.h"

namespace zelvane::win32 {

namespace {

// All pages in one place: room for the largest, though only the one in front is seen.
class Stack : public Item {
 public:
  void add(Pane& page) { pages_.push_back(&page); }

  Size natural() const override {
    Size largest;
    for (const Pane* page : pages_) {
      const Size size = page->natural();
      largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    }
    return largest;
  }
  int heightFor(int width) const override {
    int highest = 0;
    for (const Pane* page : pages_) {
      highest = std::max(highest, page->heightFor(width));
    }
    return highest;
  }
  void place(const Area& area) override {
    for (Pane* page : pages_) {
      page->place(area);
    }
  }

 private:
  std::vector<Pane*> pages_;
};

bool isDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

MainWindow::MainWindow(main_window::frmMain& window, controls::OpenBoxes& boxes, Look& look)
    : FormWindow(window.mainPage.form, look), aboutBox_(window.aboutPage, boxes, *this) {
  layOutPages(window);
  const Faces faces = facesOfControls();
  nameByLabels(window, faces);
  orderTabKeys(window, faces);
  number(window, faces);
  whenSettled([this, &window, &boxes] { startTimers(window, boxes); });
  fit();
  tabs_->showPage();
}

void MainWindow::layOutPages(main_window::frmMain& window) {
  tabs_ = &make<TabStripWindow>(window.mainPage.tabMain);
  auto stack = std::make_unique<Stack>();
  const auto addPage = [&](const std::function<void(Pane&)>& fill) {
    auto& page = make<ScrollPane>();
    fill(page);
    tabs_->addPage(page);
    stack->add(page);
  };
  addPage([&](Pane& page) { makeMainTab(window, page); });
  addPage([&](Pane& page) { makeCleanInternetTab(window.cleanerPage, page); });
  addPage([&](Pane& page) { makeCleanComputerTab(window.cleanerPage, page); });
  addPage([&](Pane& page) { makePopupKillerTab(window.popupPage, page); });
  addPage([&](Pane& page) { makeFileSecurityTab(window.fileSecurityPage, page); });
  addPage([&](Pane& page) { makeScheduleTab(window.schedulePage, page); });

  auto column = std::make_unique<Box>(Box::Lie::column, Gap::none, look());
  Box& tabRow = column->addBox(Box::Lie::row, Gap::none);
  tabRow.setMargins(Gap::tiny, Gap::small, Gap::tiny, Gap::none);
  tabRow.add(*tabs_, {.grows = true});
  column->add(std::move(stack), {.grows = true});
  Box& status = column->addBox(Box::Lie::row, Gap::none);
  status.setMargins(Gap::large, Gap::small, Gap::large, Gap::small);
  status.add(make<LineWindow>(window.mainPage.lblStatus), {.grows = true});
  body().add(std::move(column), {.grows = true});
}

MainWindow::Faces MainWindow::facesOfControls() {
  Faces faces;
  visit([&faces](Window& window) {
    if (window.control() != nullptr) {
      faces.emplace(window.control(), &window);
    }
  });
  return faces;
}

void MainWindow::nameByLabels(main_window::frmMain& window, const Faces& faces) {
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      auto* label = dynamic_cast<controls::Label*>(control);
      if (label == nullptr || label->buddy() == nullptr) {
        continue;
      }
      Window* buddy = faces.at(label->buddy());
      follow(*label, *buddy,
             [label, buddy] { setSpokenName(*buddy, plainCaption(label->caption())); });
    }
  }
}

// As the windows of the pages are still to be made, each is made when its turn is.
void MainWindow::orderTabKeys(main_window::frmMain& window, const Faces& faces) {
  for (const auto& page : window.tabPages()) {
    std::map<Pane*, const Window*> last;  // of each pane, the latest window in it
    for (const controls::Control* control : page) {
      const Window* one = faces.at(control);
      auto* pane = dynamic_cast<Pane*>(one->above());
      const Window*& before = last[pane];
      if (before != nullptr) {
        pane->makeAfter(*before, *one);
      }
      before = one;
    }
  }
}

void MainWindow::number(main_window::frmMain& window, const Faces& faces) {
  constexpr int kFirst = 1000;  // below are those of the usual buttons of boxes
  int number = kFirst;
  for (const controls::Page* page : window.pages()) {
    for (const controls::Control* control : page->controls()) {
      const auto face = faces.find(control);
      if (face != faces.end()) {
        face->second->setNumber(number);
      }
      ++number;
    }
  }
}

void MainWindow::startTimers(main_window::frmMain& window, controls::OpenBoxes& boxes) {
  for (const controls::Page* page : window.pages()) {
    for (controls::Control* control : page->controls()) {
      if (auto* timer = dynamic_cast<controls::Timer*>(control)) {
        make<TimerMirror>(*timer, boxes, window.mainPage.form);
      }
    }
  }
}

bool MainWindow::onKey(const MSG& message) {
  if (message.message != WM_KEYDOWN || !isDown(VK_CONTROL)) {
    return false;
  }
  switch (message.wParam) {
    case VK_TAB:
      tabs_->turn(isDown(VK_SHIFT) ? -1 : 1);
      return true;
    case VK_PRIOR:
      tabs_->turn(-1);
      return true;
    case VK_NEXT:
      tabs_->turn(1);
      return true;
    default:
      return false;
  }
}

}  // namespace zelvane::win32
