// A menu and its items follow their controls.
#include <QAction>
#include <QCoreApplication>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ui/qt/mirror/menu_widget.h"

namespace zelvane::test {
namespace {

class QtMenuTest : public testing::Test {
 protected:
  QAction& action(const controls::MenuItem& item) const {
    return *widget.findChild<QAction*>(QString::fromStdString(item.name()));
  }

  controls::Page page;
  controls::MenuItem first{page, "mnuFirst", ""};
  controls::MenuItem second{page, "mnuSecond", "Second", controls::MenuItem::Kind::markable};
  controls::MenuItem line{page, "mnuLine", "-"};
  controls::Menu control{page, "mnuAll", "All", {&first, &second, &line}};
  qt::MenuWidget widget{control};
};

TEST_F(QtMenuTest, TheItemsStandInTheirOrder) {
  std::vector<std::string> names;
  for (const QAction* item : widget.actions()) {
    names.push_back(item->objectName().toStdString());
  }

  EXPECT_EQ(names, (std::vector<std::string>{"mnuFirst", "mnuSecond", "mnuLine"}));
  EXPECT_TRUE(action(line).isSeparator());
  EXPECT_EQ(action(line).text(), "");
  EXPECT_EQ(widget.objectName(), "mnuAll");
}

TEST_F(QtMenuTest, CaptionMarkAndUseFollow) {
  first.setCaption("&First");
  second.setChecked(true);
  second.setEnabled(false);
  line.setVisible(false);

  EXPECT_EQ(action(first).text(), "&First");
  EXPECT_TRUE(action(second).isChecked());
  EXPECT_FALSE(action(second).isEnabled());
  EXPECT_FALSE(action(line).isVisible());
}

TEST_F(QtMenuTest, OnlyAnItemThatMayHaveAMarkShowsThatItHasNone) {
  EXPECT_FALSE(action(first).isCheckable());
  EXPECT_TRUE(action(second).isCheckable());
}

TEST_F(QtMenuTest, AChosenItemIsClickedOnceItsPanelHasItsAnswer) {
  int clicks = 0;
  first.clicked.connect([&] { ++clicks; });

  action(first).trigger();
  EXPECT_EQ(clicks, 0);

  QCoreApplication::processEvents();
  EXPECT_EQ(clicks, 1);
}

TEST_F(QtMenuTest, TheMarkOfAChosenItemIsTheProgramsToMove) {
  action(second).trigger();
  QCoreApplication::processEvents();
  EXPECT_FALSE(action(second).isChecked());

  second.clicked.connect([&] { second.setChecked(true); });
  action(second).trigger();
  QCoreApplication::processEvents();
  EXPECT_TRUE(action(second).isChecked());
}

}  // namespace
}  // namespace zelvane::test
