#include "tests/contract/tray_contract.h"

#include <algorithm>

namespace zelvane::test {

using platform::NotificationRecord;
using platform::Tray;

NotificationRecord TrayContract::record(const std::string& tip) const {
  NotificationRecord record;
  record.size = sizeof record;
  record.window = bed->tray().windowHandle("frmMain");
  record.identifier = 1;
  record.flags = 7;
  record.callbackMessage = 517;
  record.icon = bed->tray().iconHandle("frmMain");
  std::ranges::copy(tip.substr(0, record.tip.size()), record.tip.begin());
  return record;
}

namespace {

using Tips = std::vector<std::string>;
using Messages = std::vector<int>;

TEST_P(TrayContract, AtFirstThereIsNoIcon) {
  EXPECT_EQ(bed->seen(), Tips{});
  EXPECT_FALSE(bed->tray().isShown());
}

TEST_P(TrayContract, HandlesAreThoseOfTheWindowAndOfThePictures) {
  EXPECT_NE(bed->tray().windowHandle("frmMain"), 0U);
  EXPECT_NE(bed->tray().iconHandle("frmMain"), 0U);
  EXPECT_NE(bed->tray().iconHandle("picOther"), 0U);
  EXPECT_NE(bed->tray().iconHandle("picOther"), bed->tray().iconHandle("frmMain"));
  EXPECT_EQ(bed->tray().windowHandle("frmMain"), bed->tray().windowHandle("frmMain"));
}

TEST_P(TrayContract, AnAddedIconIsSeenWithItsTip) {
  EXPECT_TRUE(bed->tray().add(record("Zelvane v1.0")));

  EXPECT_EQ(bed->seen(), Tips{"Zelvane v1.0"});
  EXPECT_TRUE(bed->tray().isShown());
}

TEST_P(TrayContract, ATipThatFillsItsFieldIsSeenWhole) {
  std::string tip(60, 'x');
  tip.append("\u00e9\u00e9");

  bed->tray().add(record(tip));

  EXPECT_EQ(bed->seen(), Tips{tip});
}

TEST_P(TrayContract, ASecondIconIsRefusedAndTheFirstStays) {
  bed->tray().add(record("first"));

  EXPECT_FALSE(bed->tray().add(record("second")));

  EXPECT_EQ(bed->seen(), Tips{"first"});
  EXPECT_TRUE(bed->tray().isShown());
}

TEST_P(TrayContract, AModifiedIconHasTheNewTip) {
  bed->tray().add(record("old"));
  ASSERT_EQ(bed->seen(), Tips{"old"});
  NotificationRecord changed = record("new");
  changed.icon = bed->tray().iconHandle("picOther");

  EXPECT_TRUE(bed->tray().modify(changed));

  EXPECT_EQ(bed->seen(), Tips{"new"});
}

TEST_P(TrayContract, WhatIsNotThereCannotBeModified) {
  EXPECT_FALSE(bed->tray().modify(record("new")));

  EXPECT_EQ(bed->seen(), Tips{});
}

TEST_P(TrayContract, ARemovedIconIsGone) {
  bed->tray().add(record("Zelvane v1.0"));
  ASSERT_EQ(bed->seen(), Tips{"Zelvane v1.0"});

  EXPECT_TRUE(bed->tray().remove(record("")));

  EXPECT_EQ(bed->seen(), Tips{});
  EXPECT_FALSE(bed->tray().isShown());
}

TEST_P(TrayContract, WhatIsNotThereCannotBeRemoved) {
  EXPECT_FALSE(bed->tray().remove(record("")));

  bed->tray().add(record("Zelvane v1.0"));
  bed->tray().remove(record(""));
  EXPECT_FALSE(bed->tray().remove(record("")));
}

TEST_P(TrayContract, AnotherIconIsNeitherModifiedNorRemoved) {
  bed->tray().add(record("Zelvane v1.0"));
  NotificationRecord other = record("other");
  other.identifier = 2;

  EXPECT_FALSE(bed->tray().modify(other));
  EXPECT_FALSE(bed->tray().remove(other));

  EXPECT_EQ(bed->seen(), Tips{"Zelvane v1.0"});
}

TEST_P(TrayContract, AnIconCanBeShownAgainAndAgain) {
  for (const char* tip : {"one", "two", "three"}) {
    EXPECT_TRUE(bed->tray().add(record(tip)));
    EXPECT_EQ(bed->seen(), Tips{tip});
    EXPECT_TRUE(bed->tray().remove(record("")));
    EXPECT_EQ(bed->seen(), Tips{});
  }
}

TEST_P(TrayContract, ADoubleClickIsReported) {
  Messages messages;
  bed->tray().whenUsed([&](int message) { messages.push_back(message); });
  bed->tray().add(record("Zelvane v1.0"));
  ASSERT_EQ(bed->seen(), Tips{"Zelvane v1.0"});

  bed->doubleClick();

  EXPECT_EQ(std::ranges::count(messages, Tray::kLeftDoubleClicked), 1);
  EXPECT_EQ(std::ranges::count(messages, Tray::kRightReleased), 0);
}

TEST_P(TrayContract, TheRightButtonIsReported) {
  Messages messages;
  bed->tray().whenUsed([&](int message) { messages.push_back(message); });
  bed->tray().add(record("Zelvane v1.0"));
  ASSERT_EQ(bed->seen(), Tips{"Zelvane v1.0"});

  bed->rightClick();

  EXPECT_EQ(std::ranges::count(messages, Tray::kRightReleased), 1);
  EXPECT_EQ(std::ranges::count(messages, Tray::kLeftDoubleClicked), 0);
}

TEST_P(TrayContract, WithoutAPlaceTheIconWaitsForOne) {
  bed->takePlaceAway();

  EXPECT_TRUE(bed->tray().add(record("Zelvane v1.0")));
  EXPECT_EQ(bed->seen(), Tips{});
  EXPECT_FALSE(bed->tray().isShown());

  bed->givePlace();
  EXPECT_EQ(bed->seen(), Tips{"Zelvane v1.0"});
  EXPECT_TRUE(bed->tray().isShown());
}

TEST_P(TrayContract, AnIconThatIsLostComesBackWithThePlace) {
  int lost = 0;
  bed->tray().whenLost([&] { ++lost; });
  bed->tray().add(record("Zelvane v1.0"));
  ASSERT_EQ(bed->seen(), Tips{"Zelvane v1.0"});

  for (int time = 1; time <= 3; ++time) {
    bed->takePlaceAway();
    EXPECT_EQ(bed->seen(), Tips{});
    EXPECT_FALSE(bed->tray().isShown());
    EXPECT_EQ(lost, time);

    bed->givePlace();
    EXPECT_EQ(bed->seen(), Tips{"Zelvane v1.0"});
    EXPECT_TRUE(bed->tray().isShown());
  }
}

TEST_P(TrayContract, ALostIconThatIsRemovedDoesNotComeBack) {
  bed->tray().add(record("Zelvane v1.0"));
  ASSERT_EQ(bed->seen(), Tips{"Zelvane v1.0"});
  bed->takePlaceAway();

  EXPECT_TRUE(bed->tray().remove(record("")));
  bed->givePlace();

  EXPECT_EQ(bed->seen(), Tips{});
}

TEST_P(TrayContract, AnIconThatTheProgramRemovesIsNotLost) {
  int lost = 0;
  bed->tray().whenLost([&] { ++lost; });
  bed->tray().add(record("Zelvane v1.0"));
  ASSERT_EQ(bed->seen(), Tips{"Zelvane v1.0"});

  bed->tray().remove(record(""));
  bed->takePlaceAway();
  EXPECT_EQ(bed->seen(), Tips{});

  EXPECT_EQ(lost, 0);
}

TEST_P(TrayContract, TheMenuOpensByItsName) {
  EXPECT_EQ(bed->opened("mnuMain"), std::vector<std::string>{"mnuMain"});
  EXPECT_EQ(bed->opened("mnuNone"), std::vector<std::string>{});
}

}  // namespace
}  // namespace zelvane::test
