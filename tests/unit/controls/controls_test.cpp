// The rules of the controls' events, on which loading, Default buttons and the tray switch stand.
#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/controls/button.h"
#include "core/controls/check_box.h"
#include "core/controls/combo_box.h"
#include "core/controls/control_array.h"
#include "core/controls/date_picker.h"
#include "core/controls/form.h"
#include "core/controls/frame.h"
#include "core/controls/label.h"
#include "core/controls/list_view.h"
#include "core/controls/menu.h"
#include "core/controls/option_button.h"
#include "core/controls/progress_bar.h"
#include "core/controls/rich_log.h"
#include "core/controls/tab_strip.h"
#include "core/controls/text_box.h"
#include "core/controls/timer.h"
#include "core/controls/up_down.h"
#include "platform/error.h"

namespace zelvane::controls {
namespace {

using namespace std::chrono_literals;

class ControlsTest : public testing::Test {
 protected:
  // Counts how often an event is raised.
  struct Count {
    explicit Count(Event<>& event) {
      event.connect([this] { ++times; });
    }
    int times = 0;
  };

  template <typename Action>
  static int errorNumber(const Action& action) {
    try {
      action();
    } catch (const platform::Error& error) {
      return static_cast<int>(error.number());
    }
    return 0;
  }

  Page page;
};

TEST_F(ControlsTest, APageFindsItsControlsByNameInTheOrderOfTheirDeclaration) {
  Button first(page, "cmdFirst", "First");
  Button second(page, "cmdSecond", "Second");

  EXPECT_EQ(page.find("cmdSecond"), &second);
  EXPECT_EQ(page.find("cmdThird"), nullptr);
  EXPECT_EQ(page.controls(), (std::vector<Control*>{&first, &second}));
}

TEST_F(ControlsTest, MembersOfAnArrayAreNamedByTheirIndex) {
  const auto boxes = controlArray<CheckBox, 2>(
      page, "chkSettings", [](std::size_t index) { return index == 0 ? "Zero" : "One"; });

  EXPECT_EQ(page.find("chkSettings_1"), &boxes[1]);
  EXPECT_EQ(boxes[1].caption(), "One");
}

TEST_F(ControlsTest, AShellIsToldOfEachChangeAndOfNothingElse) {
  Label label(page, "lblStatus", "Ready");
  Count changes(label.changed);

  label.setCaption("Ready");
  EXPECT_EQ(changes.times, 0);

  label.setCaption("Busy");
  label.setEnabled(false);
  label.setVisible(false);
  label.setDescription("What is going on");
  EXPECT_EQ(changes.times, 4);
}

TEST_F(ControlsTest, SettingACheckBoxRaisesItsClickOnlyWhenTheValueChanges) {
  CheckBox box(page, "chkStartup", "Run on Startup");
  Count clicks(box.clicked);

  box.setValue(CheckBox::kUnchecked);
  EXPECT_EQ(clicks.times, 0);

  box.setValue(CheckBox::kChecked);
  box.setValue(CheckBox::kChecked);
  EXPECT_EQ(clicks.times, 1);
}

TEST_F(ControlsTest, AValueIsSetBeforeItsEventAndInTheSettersOwnStack) {
  CheckBox box(page, "chkStartup", "Run on Startup");
  std::vector<int> seen;
  box.clicked.connect([&] { seen.push_back(box.value()); });

  box.setValue(CheckBox::kChecked);
  seen.push_back(-1);

  EXPECT_EQ(seen, (std::vector<int>{1, -1}));
}

TEST_F(ControlsTest, ACheckBoxTakesTheThreeStatesAndRefusesOthers) {
  CheckBox box(page, "chkStartup", "Run on Startup");

  box.setValue(CheckBox::kGreyed);
  EXPECT_EQ(errorNumber([&] { box.setValue(3); }), 380);
  EXPECT_EQ(errorNumber([&] { box.setValue(-1); }), 380);

  EXPECT_EQ(box.value(), CheckBox::kGreyed);
  EXPECT_FALSE(box.checked());
}

TEST_F(ControlsTest, AUsersClickTicksAndUnticksACheckBox) {
  CheckBox box(page, "chkStartup", "Run on Startup");
  Count clicks(box.clicked);

  box.click();
  EXPECT_TRUE(box.checked());

  box.click();
  EXPECT_EQ(box.value(), CheckBox::kUnchecked);
  EXPECT_EQ(clicks.times, 2);
}

TEST_F(ControlsTest, WhatIsDisabledCannotBeClickedByTheUserButCanBeSetByTheProgram) {
  CheckBox box(page, "chkStartup", "Run on Startup");
  Button button(page, "cmdApply", "&Apply");
  Count presses(button.clicked);
  box.setEnabled(false);
  button.setEnabled(false);

  box.click();
  button.click();
  EXPECT_EQ(box.value(), CheckBox::kUnchecked);
  EXPECT_EQ(presses.times, 0);

  box.setValue(CheckBox::kChecked);
  EXPECT_TRUE(box.checked());
}

TEST_F(ControlsTest, ADisabledFrameMakesItsControlsUnusableAndLeavesTheirOwnStates) {
  Frame outer(page, "Frame1", "");
  Frame inner(page, "Frame2", "");
  Button button(page, "cmdEncrypt", "Encrypt");
  inner.placeIn(outer);
  button.placeIn(inner);
  Count presses(button.clicked);

  outer.setEnabled(false);
  button.click();

  EXPECT_TRUE(button.enabled());
  EXPECT_FALSE(button.reachable());
  EXPECT_EQ(presses.times, 0);
}

TEST_F(ControlsTest, AnOptionButtonRaisesItsClickOnlyWhenItBecomesSelected) {
  OptionGroup group;
  OptionButton encrypt(page, "Option2", "Encrypt", group);
  OptionButton decrypt(page, "Option3", "Decrypt", group);
  Count encryptClicks(encrypt.clicked);
  Count decryptClicks(decrypt.clicked);

  encrypt.setValue(true);
  encrypt.setValue(true);
  decrypt.click();

  EXPECT_FALSE(encrypt.value());
  EXPECT_TRUE(decrypt.value());
  EXPECT_EQ(encryptClicks.times, 1);
  EXPECT_EQ(decryptClicks.times, 1);

  decrypt.setValue(false);
  EXPECT_EQ(decryptClicks.times, 1);
  EXPECT_FALSE(decrypt.value());
}

TEST_F(ControlsTest, TheOthersAreDeselectedBeforeAnOptionButtonRaisesItsClick) {
  OptionGroup group;
  OptionButton encrypt(page, "Option2", "Encrypt", group);
  OptionButton decrypt(page, "Option3", "Decrypt", group);
  encrypt.setValue(true);
  bool bothSelected = true;
  decrypt.clicked.connect([&] { bothSelected = encrypt.value(); });

  decrypt.setValue(true);

  EXPECT_FALSE(bothSelected);
}

TEST_F(ControlsTest, AComboBoxRaisesItsClickEveryTimeItsIndexIsSet) {
  ComboBox days(page, "cmbDays", {"Monday", "Tuesday"});
  Count clicks(days.clicked);

  days.setListIndex(1);
  days.setListIndex(1);

  EXPECT_EQ(clicks.times, 2);
  EXPECT_EQ(days.text(), "Tuesday");
}

TEST_F(ControlsTest, AComboBoxStartsWithNothingSelectedAndRefusesAnIndexOutsideItsList) {
  ComboBox days(page, "cmbDays", {"Monday", "Tuesday"});

  EXPECT_EQ(days.listIndex(), ComboBox::kNothing);
  EXPECT_EQ(days.text(), "");
  EXPECT_EQ(errorNumber([&] { days.setListIndex(2); }), 380);
  EXPECT_EQ(errorNumber([&] { days.setListIndex(-2); }), 380);
  EXPECT_EQ(days.listIndex(), ComboBox::kNothing);
}

TEST_F(ControlsTest, ATextBoxRaisesItsChangeWhenItsTextChanges) {
  TextBox box(page, "txtHours", "2");
  Count edits(box.edited);

  box.setText("2");
  EXPECT_EQ(edits.times, 0);

  box.setText("3");
  EXPECT_EQ(edits.times, 1);

  box.setTag("kept beside it");
  box.setBackground(TextBox::Background::buttonFace);
  EXPECT_EQ(edits.times, 1);
  EXPECT_EQ(box.tag(), "kept beside it");
}

TEST_F(ControlsTest, ALabelsCaptionRaisesNoClick) {
  Label label(page, "lblWebSite", "");
  Count clicks(label.clicked);

  label.setCaption("https://www.zelvane.example/");
  EXPECT_EQ(clicks.times, 0);

  label.click();
  EXPECT_EQ(clicks.times, 1);
}

TEST_F(ControlsTest, AnEmptiedPickerStillShowsItsDateAndTime) {
  const platform::LocalTime noon{std::chrono::year{2026} / 11 / 21, 12h};
  DatePicker picker(page, "dtpScheduleDate", DatePicker::Kind::date);
  Count edits(picker.edited);

  picker.setValue(noon);
  picker.setValue(noon);
  EXPECT_EQ(edits.times, 1);
  EXPECT_EQ(picker.value(), noon);

  picker.setValue(std::nullopt);
  EXPECT_EQ(edits.times, 2);
  EXPECT_EQ(picker.value(), std::nullopt);
  EXPECT_EQ(picker.shown(), noon);
}

TEST_F(ControlsTest, AnUpDownCountsItsBuddyWithinItsRange) {
  TextBox hours(page, "txtHours", "2");
  UpDown arrows(page, "udnHours", hours, 0, 3);

  arrows.step(+1);
  arrows.step(+1);
  EXPECT_EQ(hours.text(), "3");

  hours.setText("many");
  arrows.step(+1);
  EXPECT_EQ(hours.text(), "1");

  hours.setText("-40");
  arrows.step(-1);
  EXPECT_EQ(hours.text(), "0");
}

TEST_F(ControlsTest, ADisabledUpDownDoesNotCount) {
  TextBox hours(page, "txtHours", "2");
  UpDown arrows(page, "udnHours", hours, 0, 3);
  arrows.setEnabled(false);

  arrows.step(+1);

  EXPECT_EQ(hours.text(), "2");
}

TEST_F(ControlsTest, ATimerTicksOnlyWhileItIsEnabled) {
  Timer timer(page, "tmrSchedule", 10ms, false);
  Count ticks(timer.ticked);

  timer.tick();
  EXPECT_EQ(ticks.times, 0);

  timer.setEnabled(true);
  timer.tick();
  EXPECT_EQ(ticks.times, 1);
}

TEST_F(ControlsTest, ATabStripRaisesItsClickWhenAnotherTabComesToTheFront) {
  TabStrip tabs(page, "tabMain", {"Main", "Schedule"});
  Count clicks(tabs.clicked);

  tabs.setTab(0);
  EXPECT_EQ(clicks.times, 0);

  tabs.setTab(1);
  EXPECT_EQ(clicks.times, 1);
  EXPECT_EQ(errorNumber([&] { tabs.setTab(2); }), 380);
  EXPECT_EQ(tabs.tab(), 1);
}

TEST_F(ControlsTest, AProgressBarStaysBetweenNothingAndAll) {
  ProgressBar bar(page, "pgb");

  bar.setFraction(1.5);
  EXPECT_EQ(bar.fraction(), 1.0);

  bar.setFraction(-1);
  EXPECT_EQ(bar.fraction(), 0.0);
}

TEST_F(ControlsTest, APieceOfTheLogTakesTheColourInForceWhenItIsAppended) {
  RichLog log(page, "rtfMessage");

  log.append("\r\nfirst");
  log.setSelectionColour(RichLog::Colour::blue);
  log.append("\r\nsecond");
  log.setSelectionColour(RichLog::Colour::green);

  EXPECT_EQ(log.runs(), (std::vector<RichLog::Run>{{"\r\nfirst", RichLog::Colour::black},
                                                   {"\r\nsecond", RichLog::Colour::blue}}));
  EXPECT_EQ(log.text(), "\r\nfirst\r\nsecond");
}

TEST_F(ControlsTest, ClearingTheLogKeepsTheColourInForce) {
  RichLog log(page, "rtfMessage");
  Count clears(log.cleared);
  log.setSelectionColour(RichLog::Colour::green);
  log.append("old");

  log.clear();
  log.append("new");

  EXPECT_EQ(clears.times, 1);
  EXPECT_EQ(log.runs(), (std::vector<RichLog::Run>{{"new", RichLog::Colour::green}}));
}

TEST_F(ControlsTest, AListViewsRowsHaveKeysOfTheirOwnAndACellForEachColumn) {
  ListView list(page, "vindows", {"Location", "URL"});
  list.add({"1K", {"Home", "https://a.example/", "surplus"}});
  list.add({"2K", {"News"}});

  EXPECT_EQ(errorNumber([&] { list.add({"1K", {"Again"}}); }), 380);

  ASSERT_EQ(list.rows().size(), 2U);
  EXPECT_EQ(list.rows()[0].cells, (std::vector<std::string>{"Home", "https://a.example/"}));
  EXPECT_EQ(list.rows()[1].cells, (std::vector<std::string>{"News", ""}));

  list.clear();
  EXPECT_TRUE(list.rows().empty());
}

TEST_F(ControlsTest, ChoosingAMenuItemLeavesItsMarkToTheProgram) {
  MenuItem item(page, "mnuPoupKiller", "Activate Popup Killer");
  MenuItem line(page, "mnuS1", "-");
  Count choices(item.clicked);
  Count lines(line.clicked);

  item.click();
  line.click();

  EXPECT_EQ(choices.times, 1);
  EXPECT_EQ(lines.times, 0);
  EXPECT_FALSE(item.checked());
}

TEST_F(ControlsTest, AFormGoesUnlessAHandlerKeepsIt) {
  Form form(page, "frmMain", "Zelvane");
  Count unloads(form.unloaded);
  UnloadMode seen{};
  form.queryUnload.connect([&](bool& cancel, UnloadMode mode) {
    seen = mode;
    cancel = mode == UnloadMode::controlMenu;
  });

  EXPECT_FALSE(form.unload(UnloadMode::controlMenu));
  EXPECT_EQ(unloads.times, 0);

  EXPECT_TRUE(form.unload(UnloadMode::windows));
  EXPECT_EQ(seen, UnloadMode::windows);
  EXPECT_EQ(unloads.times, 1);
}

}  // namespace
}  // namespace zelvane::controls
