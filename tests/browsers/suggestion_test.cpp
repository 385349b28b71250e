#include "tests/browsers/settings_bed.h"

namespace zelvane::test {
namespace {

using nlohmann::json;

constexpr auto kQuietFirefox =
    "user_pref(\"browser.urlbar.autoFill\", false);\n"
    "user_pref(\"browser.urlbar.suggest.history\", false);\n"
    "user_pref(\"browser.urlbar.suggest.bookmark\", false);\n"
    "user_pref(\"browser.urlbar.suggest.openpage\", false);\n"
    "user_pref(\"browser.urlbar.suggest.remotetab\", false);\n"
    "user_pref(\"browser.urlbar.suggest.topsites\", false);\n";
constexpr auto kQuietChromium = R"({"search":{"suggest_enabled":false}})";

class SuggestionTest : public testing::Test, public SettingsBed {
 protected:
  bool isTicked() const { return page.chkWebAddress.checked(); }
};

TEST_F(SuggestionTest, TickedNoBrowserSuggestsAndUntickedAllDo) {
  setUpFirefox("");
  setUpChromium("{}");

  page.chkWebAddress.setValue(1);

  EXPECT_EQ(read(prefs), kQuietFirefox);
  EXPECT_EQ(read(preferences), kQuietChromium);

  page.chkWebAddress.setValue(0);

  EXPECT_EQ(read(prefs).find("false"), std::string::npos);
  EXPECT_EQ(chromiumNow(), json::parse(R"({"search":{"suggest_enabled":true}})"));
}

TEST_F(SuggestionTest, TheLoadTicksTheBoxIfNoBrowserSuggestsAndChangesNone) {
  setUpFirefox(kQuietFirefox);
  setUpChromium(kQuietChromium);

  options.loadWebAddress();

  EXPECT_TRUE(isTicked());
  EXPECT_EQ(read(prefs), kQuietFirefox);
  EXPECT_EQ(read(preferences), kQuietChromium);
}

TEST_F(SuggestionTest, TheLoadLeavesTheBoxUntickedIfAnyBrowserSuggestsAndChangesNone) {
  setUpFirefox("user_pref(\"browser.urlbar.autoFill\", false);\n");
  setUpChromium(kQuietChromium);

  options.loadWebAddress();

  EXPECT_FALSE(isTicked());
  EXPECT_EQ(read(prefs), "user_pref(\"browser.urlbar.autoFill\", false);\n");
}

TEST_F(SuggestionTest, WithoutAnyBrowserTheBoxFollowsWhatWasWritten) {
  hive.put(platform::Registry::Root::currentUser,
           R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)", "AutoSuggest",
           "yes");

  options.loadWebAddress();

  EXPECT_FALSE(isTicked());
}

TEST_F(SuggestionTest, ItIsNothingThatIsNotedOrTold) {
  setUpFirefox("");

  page.chkWebAddress.setValue(1);

  EXPECT_FALSE(has(formerPages.path()));
  EXPECT_TRUE(notifications.shown.empty());
}

}  // namespace
}  // namespace zelvane::test
