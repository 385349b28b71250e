#include "core/cls_tray.h"

#include "core/shell_tray.h"
#include "tests/unit/core/tray_icons_test.h"

namespace zelvane::core {
namespace {

class ClsTrayTest : public TrayIconsTest {
 protected:
  platform::NotificationRecord recordOf(const std::string& source, const std::string& tip) const {
    return ShellTray::record(tray.windowHandle("frmTest"), 1, 7, 512, tray.iconHandle(source), tip);
  }

  clsTray icon{tray};
};

TEST_F(ClsTrayTest, NothingIsShownAtFirst) {
  EXPECT_FALSE(icon.bRunningInTray());
  EXPECT_TRUE(tray.calls().empty());
}

TEST_F(ClsTrayTest, ShowingAddsTheIconWithTheCaptionForATip) {
  icon.ShowIcon(form);

  EXPECT_EQ(lastRecord(), recordOf("frmTest", "A window"));
  EXPECT_EQ(tray.tip(), "A window");
  EXPECT_TRUE(icon.bRunningInTray());
}

TEST_F(ClsTrayTest, RemovingTakesItAway) {
  icon.ShowIcon(form);

  icon.RemoveIcon(form);

  EXPECT_EQ(tray.tip(), std::nullopt);
  EXPECT_FALSE(icon.bRunningInTray());
}

TEST_F(ClsTrayTest, AnotherPictureKeepsTheTip) {
  icon.ShowIcon(form);

  icon.ChangeIcon(form, picture);

  EXPECT_EQ(calls().back(), "modify");
  EXPECT_EQ(lastRecord(), recordOf("picNew", "A window"));
}

TEST_F(ClsTrayTest, AnotherTipKeepsThePicture) {
  icon.ShowIcon(form);
  icon.ChangeIcon(form, picture);

  icon.ChangeToolTip(form, "tip");

  EXPECT_EQ(lastRecord(), recordOf("picNew", "tip"));
  EXPECT_EQ(tray.tip(), "tip");
}

TEST_F(ClsTrayTest, AShorterTipLeavesNothingOfTheLongerOne) {
  icon.ShowIcon(form);
  icon.ChangeToolTip(form, std::string(64, 'x'));

  icon.ChangeToolTip(form, "tip");

  EXPECT_EQ(lastRecord(), recordOf("frmTest", "tip"));
}

TEST_F(ClsTrayTest, WhileNothingIsShownChangesDoNothingAtAll) {
  icon.ChangeIcon(form, picture);
  icon.ChangeToolTip(form, "tip");
  EXPECT_TRUE(tray.calls().empty());

  icon.ShowIcon(form);
  icon.RemoveIcon(form);
  icon.ChangeIcon(form, picture);
  icon.ChangeToolTip(form, "tip");
  EXPECT_EQ(calls(), (std::vector<std::string>{"add", "remove"}));
}

TEST_F(ClsTrayTest, TheFlagCanBeSetAndDecidesAboutChanges) {
  icon.ShowIcon(form);

  icon.bRunningInTray(false);
  icon.ChangeToolTip(form, "unseen");
  EXPECT_EQ(tray.tip(), "A window");

  icon.bRunningInTray(true);
  icon.ChangeToolTip(form, "seen");
  EXPECT_EQ(tray.tip(), "seen");
}

TEST_F(ClsTrayTest, WhetherItCouldBeShownIsNotAsked) {
  tray.takePlaceAway();

  icon.ShowIcon(form);

  EXPECT_TRUE(icon.bRunningInTray());
}

}  // namespace
}  // namespace zelvane::core
