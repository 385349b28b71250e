// The window on the screen: every control of frmMain has its one face there.
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <set>

#include <gtest/gtest.h>

#include "core/controls/component.h"
#include "core/controls/file_dialog.h"
#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "platform/memory/memory_desktop.h"
#include "ui/qt/main_window.h"

namespace zelvane::test {
namespace {

using controls::Control;

class QtShellTest : public testing::Test {
 protected:
  QtShellTest() { main_window::GenFunc::Main(desktop.ports(), window); }

  // The controls that stand on the pages of the window, and those around the pages.
  std::vector<Control*> controlsWithAFace() {
    std::vector<Control*> all{&window.mainPage.tabMain, &window.mainPage.lblStatus};
    for (const auto& page : window.tabPages()) {
      all.insert(all.end(), page.begin(), page.end());
    }
    return all;
  }

  QWidget* widgetOf(const Control& control) const {
    return shell.findChild<QWidget*>(QString::fromStdString(control.name()));
  }

  template <typename Widget>
  Widget& widget(const Control& control) const {
    return dynamic_cast<Widget&>(*widgetOf(control));
  }

  platform::MemoryDesktop desktop;
  main_window::frmMain window{desktop.ports()};
  controls::OpenBoxes boxes;
  qt::MainWindow shell{window, boxes};
};

TEST_F(QtShellTest, EachControlWithAFaceHasOneWidgetOfItsName) {
  for (const Control* control : controlsWithAFace()) {
    const auto widgets = shell.findChildren<QWidget*>(QString::fromStdString(control->name()));
    EXPECT_EQ(widgets.size(), 1) << control->name();
  }
}

TEST_F(QtShellTest, EachWidgetOfAControlHasANameForAScreenReader) {
  for (const Control* control : controlsWithAFace()) {
    const auto* label = dynamic_cast<const controls::Label*>(control);
    const bool empty = label != nullptr && label->caption().empty();
    const QString name = widgetOf(*control)->accessibleName();
    EXPECT_EQ(name.isEmpty(), empty) << control->name();
    EXPECT_FALSE(name.contains('&') && !name.contains("& ")) << control->name();
  }
}

TEST_F(QtShellTest, ACaptionIsTheNameWithoutTheMarkOfItsAccessKey) {
  EXPECT_EQ(widgetOf(window.mainPage.cmdClose)->accessibleName(), "Exit");
  EXPECT_EQ(widgetOf(window.cleanerPage.chkWebAddress)->accessibleName(),
            "Clear Auto Complete Web Addresses");
  EXPECT_EQ(widgetOf(window.schedulePage.cmbDays)->accessibleName(), "Run on:");
}

TEST_F(QtShellTest, ANoteIsQuieterThanTheCaptionAboveIt) {
  const QWidget& caption = *widgetOf(window.cleanerPage.chkSettings[5]);
  const auto notes = caption.parentWidget()->findChildren<QLabel*>();
  ASSERT_EQ(notes.size(), 1);

  const QWidget& note = *notes.front();

  EXPECT_GT(note.palette().color(note.foregroundRole()).lightness(),
            caption.palette().color(caption.foregroundRole()).lightness());
}

TEST_F(QtShellTest, WhatIsDisabledByItsFrameCannotBeUsedOnTheScreen) {
  EXPECT_FALSE(widgetOf(window.fileSecurityPage.cmdEncrypt)->isEnabled());
  EXPECT_TRUE(widgetOf(window.cleanerPage.cmdBasicClean)->isEnabled());

  window.fileSecurityPage.fmDravik.setEnabled(true);
  EXPECT_TRUE(widgetOf(window.fileSecurityPage.cmdEncrypt)->isEnabled());
}

TEST_F(QtShellTest, TheTabKeyVisitsTheControlsInTheOrderOfTheirPage) {
  for (const auto& page : window.tabPages()) {
    std::vector<QWidget*> chain;
    QWidget* at = &shell;
    do {
      at = at->nextInFocusChain();
      chain.push_back(at);
    } while (at != &shell);
    auto last = chain.begin();
    for (const Control* control : page) {
      QWidget* visited = widgetOf(*control);
      visited = visited->focusProxy() == nullptr ? visited : visited->focusProxy();
      if (visited->focusPolicy() & Qt::TabFocus) {
        const auto found = std::find(chain.begin(), chain.end(), visited);
        EXPECT_FALSE(found < last) << control->name();
        last = found;
      }
    }
  }
}

TEST_F(QtShellTest, PressingTheButtonOnTheScreenRunsTheCleaner) {
  widget<QAbstractButton>(window.cleanerPage.cmdBasicClean).click();

  EXPECT_TRUE(window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
}

TEST_F(QtShellTest, TheCloseBoxHidesAndTheProgramLives) {
  shell.close();

  EXPECT_FALSE(shell.isVisible());
  EXPECT_FALSE(window.mainPage.form.visible());
  EXPECT_FALSE(desktop.process.ended());
}

TEST_F(QtShellTest, AHiddenWindowComesBackNormal) {
  shell.close();

  desktop.tray.use(platform::Tray::kLeftDoubleClicked);

  EXPECT_TRUE(shell.isVisible());
  EXPECT_FALSE(shell.isMinimized());
}

TEST_F(QtShellTest, AHiddenWindowWhoseIconIsLostIsShownMinimised) {
  shell.close();

  desktop.tray.takePlaceAway();

  EXPECT_TRUE(shell.isVisible());
  EXPECT_TRUE(shell.isMinimized());
}

TEST_F(QtShellTest, WithoutAPlaceForTheIconTheCloseBoxMinimisesAndTheProgramLives) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&shell));
  desktop.tray.takePlaceAway();

  shell.close();

  EXPECT_TRUE(QTest::qWaitFor([this] { return shell.isMinimized(); }));
  EXPECT_EQ(window.mainPage.form.state(), controls::Form::State::minimised);
  EXPECT_TRUE(window.mainPage.form.visible());
  EXPECT_FALSE(desktop.process.ended());
}

TEST_F(QtShellTest, AMinimisedWindowThatTheUserRestoresIsNormalAgain) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&shell));
  window.mainPage.form.setState(controls::Form::State::minimised);
  ASSERT_TRUE(QTest::qWaitFor([this] { return shell.isMinimized(); }));

  shell.showNormal();

  EXPECT_EQ(window.mainPage.form.state(), controls::Form::State::normal);
}

TEST_F(QtShellTest, ThePageInFrontFollowsBothWays) {
  auto& tabs = widget<QTabWidget>(window.mainPage.tabMain);

  window.mainPage.tabMain.setTab(2);
  EXPECT_EQ(tabs.currentIndex(), 2);

  tabs.setCurrentIndex(1);
  EXPECT_EQ(window.mainPage.tabMain.tab(), 1);
}

TEST_F(QtShellTest, ThePagesFitTheWindowWithoutScrolling) {
  EXPECT_EQ(shell.windowTitle(), "Zelvane v1.0");
  auto& tabs = widget<QTabWidget>(window.mainPage.tabMain);
  for (int page = 0; page < tabs.count(); ++page) {
    tabs.setCurrentIndex(page);
    QApplication::processEvents();
    for (const QWidget* bar : tabs.widget(page)->findChildren<QWidget*>(
             "qt_scrollarea_vcontainer", Qt::FindDirectChildrenOnly)) {
      EXPECT_FALSE(bar->isVisible()) << "page " << page;
    }
  }
}

}  // namespace
}  // namespace zelvane::test
