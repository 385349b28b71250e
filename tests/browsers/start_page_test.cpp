#include "tests/browsers/settings_bed.h"

namespace zelvane::test {
namespace {

using nlohmann::json;

constexpr auto kMine = "https://mine.example/";
constexpr auto kMain = R"(Software\Microsoft\Internet Explorer\Main)";

constexpr auto kFirefoxHas =
    "user_pref(\"browser.startup.homepage\", \"https://mine.example/\");\n"
    "user_pref(\"browser.startup.page\", 1);\n";

json chromiumHas(const std::string& address) {
  return {{"homepage", address},
          {"homepage_is_newtabpage", false},
          {"session", {{"restore_on_startup", 4}, {"startup_urls", {address}}}}};
}

class StartPageTest : public testing::Test, public SettingsBed {};

TEST_F(StartPageTest, TheButtonGivesItToEveryBrowser) {
  setUpFirefox("user_pref(\"a\", 1);\n");
  setUpChromium("{}");

  setHomePage(kMine);

  EXPECT_EQ(read(prefs), std::string("user_pref(\"a\", 1);\n") + kFirefoxHas);
  EXPECT_EQ(chromiumNow(), chromiumHas(kMine));
}

TEST_F(StartPageTest, AtAFirstStartItIsABlankPage) {
  setUpChromium("{}");

  homePage.reimpose();

  EXPECT_EQ(chromiumNow(), chromiumHas("about:blank"));
}

TEST_F(StartPageTest, APageThatASiteSlippedInIsSetBackAtTheNextStartAlsoWithItsOptionUnticked) {
  setUpFirefox("user_pref(\"a\", 1);\n");
  setUpChromium("{}");
  page.chkSettings[0].setValue(0);
  setHomePage(kMine);
  setUpFirefox(
      "user_pref(\"browser.startup.homepage\", \"https://theirs.example/\");\n"
      "user_pref(\"browser.startup.page\", 3);\n");
  setUpChromium(chromiumHas("https://theirs.example/").dump());

  homePage.reimpose();

  EXPECT_EQ(read(prefs), kFirefoxHas);
  EXPECT_EQ(chromiumNow(), chromiumHas(kMine));
}

TEST_F(StartPageTest, AnEmptyOneIsABlankPageToBrowsersAndEmptyInTheRegistry) {
  setUpFirefox("");
  setUpChromium("{}");

  setHomePage("");
  homePage.reimpose();

  EXPECT_EQ(hive.text(platform::Registry::Root::currentUser, kMain, "Start Page"), "");
  EXPECT_EQ(stored.find("HomePage", "StartPage"), "");
  EXPECT_NE(read(prefs).find("\"browser.startup.homepage\", \"about:blank\""), std::string::npos);
  EXPECT_EQ(chromiumNow(), chromiumHas("about:blank"));
}

TEST_F(StartPageTest, WithoutTheBrowserKeyNoBrowserIsTouched) {
  setUpFirefox("user_pref(\"a\", 1);\n");
  hive.deleteKey(platform::Registry::Root::currentUser, kMain);

  setHomePage(kMine);
  homePage.reimpose();

  EXPECT_EQ(read(prefs), "user_pref(\"a\", 1);\n");
}

TEST_F(StartPageTest, NothingIsWrittenWhereEverythingIsAsWanted) {
  const std::string right = "  " + chromiumHas(kMine).dump(1);
  setUpFirefox(kFirefoxHas);
  setUpChromium(right);

  setHomePage(kMine);

  EXPECT_EQ(read(preferences), right);
  EXPECT_EQ(read(prefs), kFirefoxHas);
  EXPECT_TRUE(notifications.shown.empty());
  EXPECT_FALSE(has(formerPages.path()));
}

TEST_F(StartPageTest, AllElseThatChromiumKeepsKeepsItsValue) {
  const std::string others =
      R"("numbers":[9223372036854775807,18446744073709551615,-9223372036854775808,0.1,1e+300,)"
      R"(13370000000000001.0,5e-324,-0.0],"session":{"other":"\u0000é"},"z":null})";
  setUpChromium(R"({"a":{"b":[{}, [], ""]},)" + others);
  const json before = chromiumNow();

  setHomePage(kMine);

  const json after = chromiumNow();
  EXPECT_EQ(after.at("a"), before.at("a"));
  EXPECT_EQ(after.at("numbers").dump(), before.at("numbers").dump());
  EXPECT_NE(read(preferences).find("9223372036854775807,18446744073709551615,-9223372036854775808"),
            std::string::npos);
  EXPECT_EQ(after.at("session").at("other"), before.at("session").at("other"));
  EXPECT_TRUE(after.at("z").is_null());
}

TEST_F(StartPageTest, WhatTheUserWroteIntoUserJsIsChangedInPlaceForItWins) {
  setUpFirefox("user_pref(\"a\", 1);\n");
  writeFile(userPrefs, "# mine\nuser_pref('browser.startup.homepage', 'x'); // why\n");

  setHomePage(kMine);

  EXPECT_EQ(read(userPrefs),
            "# mine\nuser_pref('browser.startup.homepage', \"https://mine.example/\"); // why\n");
  EXPECT_EQ(read(prefs), std::string("user_pref(\"a\", 1);\n") + kFirefoxHas);
}

TEST_F(StartPageTest, AUserJsWithoutAWordOfItStaysAsItIs) {
  setUpFirefox("");
  writeFile(userPrefs, "user_pref('other', 1); and something strange");

  setHomePage(kMine);

  EXPECT_EQ(read(userPrefs), "user_pref('other', 1); and something strange");
  EXPECT_EQ(read(prefs), kFirefoxHas);
}

TEST_F(StartPageTest, ASettingThatTheBrowserGuardsIsLeftWithAllThatBelongsToIt) {
  for (const char* guarded :
       {R"({"homepage": "https://theirs.example/"})",
        R"({"protection": {"macs": {"session": {"startup_urls": "0123456789ABCDEF"}}}})",
        "no JSON"}) {
    setUpChromium(R"({"kept":1})", guarded);

    setHomePage(kMine);

    EXPECT_EQ(read(preferences), R"({"kept":1})") << guarded;
    EXPECT_EQ(read(chromium + "/Secure Preferences"), guarded);
  }
}

TEST_F(StartPageTest, SettingsThatAreNoSettingsAreLeft) {
  const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
  for (const std::string& content :
       {std::string(), std::string("no JSON"), std::string("[]"), std::string(R"({"session":5})"),
        R"({"deep":)" + deep + "}", std::string("{\"a\":\"\xff\"}")}) {
    setUpChromium(content);

    setHomePage(kMine);

    EXPECT_EQ(read(preferences), content);
  }
  setUpFirefox("user_pref(\"a\", ");
  setHomePage("https://other.example/");
  EXPECT_EQ(read(prefs), "user_pref(\"a\", ");
}

TEST_F(StartPageTest, SettingsOfAHundredMegabytesAreLeft) {
  setUpChromium("{}");
  setUpFirefox("");
  std::filesystem::resize_file(preferences, 100'000'000);
  std::filesystem::resize_file(prefs, 100'000'000);

  setHomePage(kMine);

  EXPECT_EQ(std::filesystem::file_size(preferences), 100'000'000U);
  EXPECT_EQ(std::filesystem::file_size(prefs), 100'000'000U);
}

TEST_F(StartPageTest, ALinkInPlaceOfSettingsIsLeftAndNotFollowed) {
  setUpFirefox("");
  setUpChromium("{}");
  writeFile(chromium + "/History", "");
  for (const auto& [path, target] : {std::pair{prefs, home + "/elsewhere.js"},
                                     std::pair{preferences, home + "/elsewhere.json"}}) {
    std::filesystem::remove(path);
    writeFile(target, "{}");
    own->makeLink(path, target);
  }
  writeFile(firefox + "/times.json", "{}");

  setHomePage(kMine);

  EXPECT_EQ(read(home + "/elsewhere.js"), "{}");
  EXPECT_EQ(read(home + "/elsewhere.json"), "{}");
}

TEST_F(StartPageTest, OneThatFailsStopsNoOther) {
  setUpFirefox("user_pref(");
  setUpChromium("{}");

  setHomePage(kMine);

  EXPECT_EQ(chromiumNow(), chromiumHas(kMine));
}

TEST_F(StartPageTest, ATextThatIsNoUtf8ReachesNoBrowser) {
  setUpFirefox("");
  setUpChromium("{}");

  setHomePage("\xff");

  EXPECT_EQ(read(prefs), "");
  EXPECT_EQ(read(preferences), "{}");
}

TEST_F(StartPageTest, WhatABrowserHadBeforeIsNotedAndToldOnce) {
  setUpFirefox("user_pref(\"browser.startup.homepage\", \"https://old.example/\");\n");
  setUpChromium(R"({"session":{"restore_on_startup":1}})");

  homePage.reimpose();
  setHomePage(kMine);
  homePage.reimpose();

  const json ofFirefox = {
      {"browser", "Firefox (p0)"},
      {"settings",
       {{"browser.startup.homepage", "https://old.example/"}, {"browser.startup.page", nullptr}}}};
  const json ofChromium = {{"browser", "Chromium (Default)"},
                           {"settings",
                            {{"homepage", nullptr},
                             {"homepage_is_newtabpage", nullptr},
                             {"session/restore_on_startup", 1},
                             {"session/startup_urls", nullptr}}}};
  EXPECT_EQ(notes(), (json{{firefox, ofFirefox}, {chromium, ofChromium}}));
  ASSERT_EQ(notifications.shown.size(), 1U);
  EXPECT_EQ(notifications.shown[0].text,
            "Firefox (p0) now starts with your home page. What it started with before is noted.\n"
            "Chromium (Default) now starts with your home page. What it started with before is "
            "noted.\nThe notes: " +
                formerPages.path());
}

TEST_F(StartPageTest, WithoutAPlaceForItsNoteABrowserIsLeft) {
  setUpChromium("{}");
  std::filesystem::remove(dataFolder);
  writeFile(dataFolder, "a file in its place");

  setHomePage(kMine);

  EXPECT_EQ(read(preferences), "{}");
  EXPECT_TRUE(notifications.shown.empty());
}

TEST_F(StartPageTest, NotesThatNobodyUnderstandsAreKeptUnderAnotherName) {
  setUpChromium("{}");
  writeFile(formerPages.path(), "{\"format\": 2}");
  writeFile(formerPages.path() + ".damaged", "an older one");

  setHomePage(kMine);

  EXPECT_EQ(read(formerPages.path() + ".damaged"), "an older one");
  EXPECT_EQ(read(formerPages.path() + ".damaged-2"), "{\"format\": 2}");
  EXPECT_TRUE(notes().contains(chromium));
}

}  // namespace
}  // namespace zelvane::test
