#include "cleaner/options_handlers.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/memory/memory_desktop.h"

namespace zelvane::cleaner {
namespace {

using Root = platform::Registry::Root;

constexpr auto kAutoComplete = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)";

class OptionsHandlersTest : public testing::Test {
 protected:
  std::optional<std::string> stored(std::size_t index) const {
    return desktop.settings.find(desktop.identity.programFolder(), "Settings",
                                 "Index" + std::to_string(index));
  }

  void store(std::size_t index, const std::string& text) {
    desktop.settings.put(desktop.identity.programFolder(), "Settings",
                         "Index" + std::to_string(index), text);
  }

  std::vector<int> states() const {
    std::vector<int> values;
    for (const controls::CheckBox& box : page.chkSettings) {
      values.push_back(box.value());
    }
    return values;
  }

  platform::MemoryDesktop desktop;
  core::SettingsStore settings{desktop.settings, desktop.identity};
  CleanerPage page;
  bool saving = true;
  OptionsHandlers options{page, settings, desktop.registry, saving};
};

TEST_F(OptionsHandlersTest, WithNothingStoredEveryBoxStaysUnticked) {
  options.loadOptions();

  EXPECT_EQ(states(), std::vector<int>(kOptionCount, 0));
}

TEST_F(OptionsHandlersTest, AClickIsStoredAtOnceUnderTheProgramsFolder) {
  page.chkSettings[12].click();
  EXPECT_EQ(stored(12), "1");

  page.chkSettings[12].click();
  EXPECT_EQ(stored(12), "0");
}

TEST_F(OptionsHandlersTest, WhileTheLoadIsClickingNothingIsStored) {
  saving = false;

  page.chkSettings[12].setValue(1);
  options.cmdDefaultSettings_Click();

  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(OptionsHandlersTest, StoredStatesComeBack) {
  store(0, "1");
  store(13, "1");
  store(15, "2");
  page.chkSettings[7].setValue(1);
  store(7, "0");

  options.loadOptions();

  EXPECT_EQ(states(), (std::vector<int>{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 2}));
}

TEST_F(OptionsHandlersTest, AStoredThreeMeansNothingStoredHoweverItIsWritten) {
  page.chkSettings[4].setValue(1);
  page.chkSettings[5].setValue(1);
  store(4, "3");
  store(5, " 3.0 ");

  options.loadOptions();

  EXPECT_EQ(page.chkSettings[4].value(), 1);
  EXPECT_EQ(page.chkSettings[5].value(), 1);
}

TEST_F(OptionsHandlersTest, AnOptionThatCannotBeReadIsSkippedWithoutAWord) {
  store(2, "abc");
  store(3, "40000");
  store(4, "7");
  store(5, "");
  store(6, "1");

  options.loadOptions();

  EXPECT_EQ(states(), (std::vector<int>{0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(OptionsHandlersTest, DefaultOnCleanInternetStoresItsBoxesInItsOrder) {
  // Every box at the other state, so that each setting is a change.
  for (const DefaultState& option : kInternetDefaults) {
    page.chkSettings[option.index].setValue(1 - option.state);
  }
  desktop.settings.forgetSaves();

  page.cmdDefaultSettings.click();

  EXPECT_EQ(
      desktop.settings.savedKeys(),
      (std::vector<std::string>{"Index2", "Index6", "Index7", "Index8", "Index9", "Index10",
                                "Index1", "Index4", "Index0", "Index3", "Index5", "Index11"}));
  EXPECT_EQ(states(), (std::vector<int>{1, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 0, 0, 0}));
}

TEST_F(OptionsHandlersTest, DefaultOnCleanComputerStoresItsBoxesInItsOrder) {
  for (const DefaultState& option : kComputerDefaults) {
    page.chkSettings[option.index].setValue(1 - option.state);
  }
  desktop.settings.forgetSaves();

  page.cmdDefaultSettings1.click();

  EXPECT_EQ(desktop.settings.savedKeys(),
            (std::vector<std::string>{"Index10", "Index1", "Index4", "Index0", "Index3", "Index5",
                                      "Index11"}));
  EXPECT_EQ(states(), (std::vector<int>{1, 1, 0, 1, 0, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0}));
}

TEST_F(OptionsHandlersTest, DefaultLeavesTheLastFourAndTheWebAddressBoxAlone) {
  for (const std::size_t index : {12U, 13U, 14U, 15U}) {
    page.chkSettings[index].setValue(1);
  }
  page.chkWebAddress.setValue(1);

  page.cmdDefaultSettings.click();
  page.cmdDefaultSettings1.click();

  EXPECT_EQ(states(), (std::vector<int>{1, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 1, 1, 1, 1}));
  EXPECT_TRUE(page.chkWebAddress.checked());
}

TEST_F(OptionsHandlersTest, DefaultPressedTwiceStoresNothingTheSecondTime) {
  page.cmdDefaultSettings1.click();
  desktop.settings.forgetSaves();

  page.cmdDefaultSettings1.click();

  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(OptionsHandlersTest, AStoreThatRefusesIsNotReportedAndTheBoxKeepsTheClick) {
  desktop.settings.refuseSaves();

  page.chkSettings[12].click();

  EXPECT_TRUE(page.chkSettings[12].checked());
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(OptionsHandlersTest, TheWebAddressBoxActsAtOnceAndIsNotStored) {
  page.chkWebAddress.click();
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kAutoComplete, "AutoSuggest"), "no");

  page.chkWebAddress.click();
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kAutoComplete, "AutoSuggest"), "yes");
  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(OptionsHandlersTest, TheWebAddressBoxNeverCreatesItsKey) {
  desktop.registry.deleteKey(Root::currentUser, kAutoComplete);

  page.chkWebAddress.click();

  EXPECT_FALSE(desktop.registry.hasKey(Root::currentUser, kAutoComplete));
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(OptionsHandlersTest, LoadingTheOptionsNeverTouchesTheWebAddressBox) {
  desktop.registry.put(Root::currentUser, kAutoComplete, "AutoSuggest", "yes");

  options.loadOptions();

  EXPECT_FALSE(page.chkWebAddress.checked());
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kAutoComplete, "AutoSuggest"), "yes");
}

TEST_F(OptionsHandlersTest, TheWebAddressBoxIsTickedUnlessTheBrowserSuggests) {
  desktop.registry.put(Root::currentUser, kAutoComplete, "AutoSuggest", "yes");
  options.loadWebAddress();
  EXPECT_FALSE(page.chkWebAddress.checked());

  desktop.registry.put(Root::currentUser, kAutoComplete, "AutoSuggest", "perhaps");
  options.loadWebAddress();
  EXPECT_TRUE(page.chkWebAddress.checked());
}

}  // namespace
}  // namespace zelvane::cleaner
