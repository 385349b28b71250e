#include "popupkiller/popup_switch.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/controls/menu.h"
#include "platform/memory/memory_desktop.h"

namespace zelvane::popupkiller {
namespace {

class PopupSwitchTest : public testing::Test {
 protected:
  void store(const std::string& text) { desktop.settings.put("PopupKiller", "IsActive", text); }
  std::optional<std::string> stored() const {
    return desktop.settings.find("PopupKiller", "IsActive");
  }
  std::size_t saves() const { return desktop.settings.saves().size(); }

  // As the window does, with its other steps between these two.
  void load() {
    popupSwitch.load();
    popupSwitch.markMenuItem();
  }

  // The state of box, flag and mark, which are to be the same: "on" or "off"; otherwise what each
  // one is.
  std::string shown() const {
    const std::string all = std::string(page.chkPopupKillerActivate.checked() ? "1" : "0") +
                            (events.gPopupKillerActive ? "1" : "0") + (item.checked() ? "1" : "0");
    return all == "111" ? "on" : all == "000" ? "off" : all;
  }

  platform::MemoryDesktop desktop;
  core::SettingsStore settings{desktop.settings, desktop.identity};
  PopupPage page;
  controls::Page menu;
  controls::MenuItem item{menu, "mnuPoupKiller", "Activate Popup Killer"};
  Events events;
  PopupSwitch popupSwitch{page, item, events, settings};
};

TEST_F(PopupSwitchTest, BeforeTheLoadItIsOff) { EXPECT_EQ(shown(), "off"); }

TEST_F(PopupSwitchTest, WithNothingStoredItIsOnAndThatIsStored) {
  load();

  EXPECT_EQ(shown(), "on");
  EXPECT_EQ(stored(), "1");
  EXPECT_EQ(saves(), 1U);
}

TEST_F(PopupSwitchTest, AStoredZeroIsOffAndTheLoadStoresNothing) {
  store("0");

  load();

  EXPECT_EQ(shown(), "off");
  EXPECT_EQ(saves(), 0U);
}

class PopupSwitchOnTest : public PopupSwitchTest,
                          public testing::WithParamInterface<const char*> {};

TEST_P(PopupSwitchOnTest, IsOnAndReplacedByOne) {
  store(GetParam());

  load();

  EXPECT_EQ(shown(), "on");
  EXPECT_EQ(stored(), "1");
}

INSTANTIATE_TEST_SUITE_P(AnyOtherStoredText, PopupSwitchOnTest,
                         testing::Values("1", "yes", "2", "", "00", " 0", "no"));

TEST_F(PopupSwitchTest, AStoreThatCannotBeReadIsLikeNothingStored) {
  store("0");
  desktop.settings.refuseEverything();

  load();

  EXPECT_EQ(shown(), "on");
}

TEST_F(PopupSwitchTest, ClickingTheBoxTurnsItOffAtOnceAndStoresThatOnce) {
  load();
  desktop.settings.forgetSaves();

  page.chkPopupKillerActivate.click();

  EXPECT_EQ(shown(), "off");
  EXPECT_EQ(stored(), "0");
  EXPECT_EQ(saves(), 1U);
}

TEST_F(PopupSwitchTest, ClickingTheBoxAgainTurnsItOn) {
  load();
  page.chkPopupKillerActivate.click();

  page.chkPopupKillerActivate.click();

  EXPECT_EQ(shown(), "on");
  EXPECT_EQ(stored(), "1");
}

TEST_F(PopupSwitchTest, ClickingTheTrayItemWhenOnUnticksTheBoxAndRemovesTheMark) {
  load();

  item.click();

  EXPECT_EQ(shown(), "off");
  EXPECT_EQ(stored(), "0");
}

TEST_F(PopupSwitchTest, ClickingTheTrayItemWhenOffTicksTheBoxAndSetsTheMark) {
  store("0");
  load();

  item.click();

  EXPECT_EQ(shown(), "on");
  EXPECT_EQ(stored(), "1");
}

TEST_F(PopupSwitchTest, TheTrayItemStoresTwiceTheItemsClickAndTheBoxs) {
  load();
  desktop.settings.forgetSaves();

  item.click();

  EXPECT_EQ(desktop.settings.savedKeys(), (std::vector<std::string>{"IsActive", "IsActive"}));
}

TEST_F(PopupSwitchTest, TheTrayItemLeavesItsOwnMarkToTheBoxsClick) {
  load();
  std::vector<std::string> seen;
  page.chkPopupKillerActivate.changed.connect([&] { seen.push_back(shown()); });

  item.click();

  // The flag has gone, the box goes just now, and the mark still stands.
  EXPECT_EQ(seen, std::vector<std::string>{"001"});
}

TEST_F(PopupSwitchTest, AMarkThatAgreesWithNoBoxStaysWhereItIs) {
  item.setChecked(true);

  item.click();

  EXPECT_FALSE(page.chkPopupKillerActivate.checked());
  EXPECT_TRUE(item.checked());
  EXPECT_EQ(saves(), 1U);
}

TEST_F(PopupSwitchTest, AStoreThatRefusesIsNotReportedAndTheClickHolds) {
  load();
  desktop.settings.refuseEverything();

  page.chkPopupKillerActivate.click();

  EXPECT_EQ(shown(), "off");
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(PopupSwitchTest, TheChoiceLastsToTheNextLoad) {
  load();
  item.click();
  PopupPage nextPage;
  Events nextEvents;
  PopupSwitch next(nextPage, item, nextEvents, settings);

  next.load();

  EXPECT_FALSE(nextPage.chkPopupKillerActivate.checked());
  EXPECT_FALSE(nextEvents.gPopupKillerActive);
}

}  // namespace
}  // namespace zelvane::popupkiller
