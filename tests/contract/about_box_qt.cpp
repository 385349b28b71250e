// The About box on the screen.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "core/main_window/frm_main.h"
#include "core/main_window/startup.h"
#include "platform/memory/memory_desktop.h"
#include "ui/qt/main_window.h"

namespace zelvane::test {
namespace {

class QtAboutBoxTest : public testing::Test {
 protected:
  QtAboutBoxTest() { main_window::GenFunc::Main(desktop.ports(), window); }

  // The dialog on the screen, or null.
  QDialog* dialog() const {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* found = qobject_cast<QDialog*>(widget);
      if (found != nullptr && found->isVisible() && found->objectName() == "frmAbout") {
        return found;
      }
    }
    return nullptr;
  }

  int dialogs() const {
    int count = 0;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
      count += widget->objectName() == "frmAbout" && widget->isVisible() ? 1 : 0;
    }
    return count;
  }

  platform::MemoryDesktop desktop;
  main_window::frmMain window{desktop.ports()};
  controls::OpenBoxes boxes;
  qt::MainWindow shell{window, boxes};
};

TEST_F(QtAboutBoxTest, TheMenuItemOpensItWithCaptionAndNotice) {
  window.trayMenu.mnuAbout.click();

  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(dialog()->windowTitle(), "About Zelvane v1.0");
  EXPECT_EQ(dialog()->accessibleName(), "About Zelvane v1.0");
  EXPECT_TRUE(dialog()
                  ->findChild<QLabel*>("lblCopyRight")
                  ->text()
                  .contains("\nAll rights reserved. Copyright 2026 Zelvane"));
  EXPECT_TRUE(dialog()->isModal());
}

TEST_F(QtAboutBoxTest, TheNoticeIsSeenWhole) {
  window.trayMenu.mnuAbout.click();

  const auto* notice = dialog()->findChild<QLabel*>("lblCopyRight");

  EXPECT_GE(notice->width(), notice->sizeHint().width());
  EXPECT_GE(notice->height(), notice->fontMetrics().height() * 6);
}

TEST_F(QtAboutBoxTest, NoTimerTicksWhileItIsOpen) {
  EXPECT_FALSE(boxes.any());

  window.trayMenu.mnuAbout.click();
  EXPECT_TRUE(boxes.any());

  window.aboutPage.cmdOK.click();
  EXPECT_FALSE(boxes.any());
}

TEST_F(QtAboutBoxTest, ItsButtonClosesIt) {
  window.trayMenu.mnuAbout.click();

  dialog()->findChild<QPushButton*>("cmdOK")->click();

  EXPECT_EQ(dialog(), nullptr);
  EXPECT_FALSE(window.aboutPage.frmAbout.visible());
}

TEST_F(QtAboutBoxTest, TheReturnKeyPressesItsButtonAndTheEscapeKeyClosesIt) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    window.trayMenu.mnuAbout.click();

    QTest::keyClick(dialog(), key);

    EXPECT_EQ(dialog(), nullptr);
    EXPECT_FALSE(window.aboutPage.frmAbout.visible());
    EXPECT_FALSE(boxes.any());
  }
}

TEST_F(QtAboutBoxTest, ItsCloseBoxClosesIt) {
  window.trayMenu.mnuAbout.click();

  dialog()->close();

  EXPECT_FALSE(window.aboutPage.frmAbout.visible());
  EXPECT_FALSE(boxes.any());
}

TEST_F(QtAboutBoxTest, AskedForAgainItIsThereOnce) {
  window.trayMenu.mnuAbout.click();
  window.trayMenu.mnuAbout.click();
  EXPECT_EQ(dialogs(), 1);

  window.aboutPage.cmdOK.click();
  window.trayMenu.mnuAbout.click();
  EXPECT_EQ(dialogs(), 1);
}

TEST_F(QtAboutBoxTest, WithTheWindowOutOfSightItOpensByItself) {
  window.mainPage.form.setState(controls::Form::State::minimised);

  window.trayMenu.mnuAbout.click();

  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(dialog()->parentWidget(), nullptr);
}

TEST_F(QtAboutBoxTest, TheProgramCanBeEndedMeanwhile) {
  window.trayMenu.mnuAbout.click();

  EXPECT_THROW(window.mainPage.form.unload(controls::UnloadMode::windows), platform::ProcessEnded);

  EXPECT_TRUE(desktop.process.ended());
}

}  // namespace
}  // namespace zelvane::test
