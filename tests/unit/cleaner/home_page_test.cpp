#include "cleaner/home_page.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_desktop.h"

namespace zelvane::cleaner {
namespace {

using Root = platform::Registry::Root;

constexpr auto kMain = R"(Software\Microsoft\Internet Explorer\Main)";

class HomePageTest : public testing::Test {
 protected:
  std::optional<std::string> startPage() const {
    return desktop.registry.text(Root::currentUser, kMain, "Start Page");
  }

  platform::MemoryDesktop desktop;
  core::SettingsStore settings{desktop.settings, desktop.identity};
  CleanerPage page;
  HomePage homePage{page, settings, desktop.registry};
};

TEST_F(HomePageTest, WithNothingStoredItIsABlankPage) {
  homePage.reimpose();

  EXPECT_EQ(page.txtHomePageURL.text(), "about:blank");
  EXPECT_EQ(startPage(), "about:blank");
}

TEST_F(HomePageTest, AStartPageThatASiteSlippedInIsPutBackAlsoWithItsOptionUnticked) {
  desktop.settings.put("HomePage", "StartPage", "https://mine.example/");
  desktop.registry.put(Root::currentUser, kMain, "Start Page", "https://theirs.example/");
  page.chkSettings[0].setValue(0);

  homePage.reimpose();

  EXPECT_EQ(startPage(), "https://mine.example/");
}

TEST_F(HomePageTest, TheButtonWritesAndStoresTheTextAsTyped) {
  page.txtHomePageURL.setText("  no address at all ");

  page.cmdHomePage.click();

  EXPECT_EQ(startPage(), "  no address at all ");
  EXPECT_EQ(desktop.settings.find("HomePage", "StartPage"), "  no address at all ");
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(HomePageTest, AnEmptyAddressIsKeptAndNotReplacedByTheDefault) {
  page.txtHomePageURL.setText("");
  page.cmdHomePage.click();
  EXPECT_EQ(startPage(), "");
  page.txtHomePageURL.setText("typed since");

  homePage.reimpose();

  EXPECT_EQ(page.txtHomePageURL.text(), "");
  EXPECT_EQ(startPage(), "");
}

TEST_F(HomePageTest, AMissingBrowserKeyIsNotCreatedAndNotReported) {
  desktop.registry.deleteKey(Root::currentUser, kMain);

  homePage.reimpose();
  page.cmdHomePage.click();

  EXPECT_FALSE(desktop.registry.hasKey(Root::currentUser, kMain));
}

TEST_F(HomePageTest, AStoreThatRefusesIsNotReportedAndTheBoxKeepsTheText) {
  desktop.settings.refuseSaves();
  page.txtHomePageURL.setText("https://mine.example/");

  page.cmdHomePage.click();

  EXPECT_EQ(page.txtHomePageURL.text(), "https://mine.example/");
  EXPECT_EQ(startPage(), "https://mine.example/");
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

}  // namespace
}  // namespace zelvane::cleaner
