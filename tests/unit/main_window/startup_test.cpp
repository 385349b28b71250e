#include "core/main_window/startup.h"

#include "tests/unit/main_window/window_test.h"

namespace zelvane::main_window {
namespace {

class StartupTest : public WindowTest {};

TEST_F(StartupTest, TheFirstInstanceShowsItsLoadedWindow) {
  start();

  EXPECT_TRUE(window.mainPage.form.visible());
  EXPECT_EQ(window.mainPage.form.caption(), "Zelvane v1.0");
  EXPECT_TRUE(desktop.dialogs.boxes().empty());
}

TEST_F(StartupTest, ASecondInstanceSaysSoAndEndsBeforeItTouchesAnything) {
  desktop.instance.heldByAnother = true;
  desktop.settings.damage();
  desktop.registry.damage();

  EXPECT_THROW(start(), platform::ProcessEnded);

  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].text, "Zelvane v1.0 already running.");
  EXPECT_EQ(desktop.dialogs.boxes()[0].title, "Zelvane");
  EXPECT_EQ(desktop.dialogs.boxes()[0].icon, platform::MessageIcon::information);
  EXPECT_FALSE(window.mainPage.form.visible());
  EXPECT_EQ(desktop.winIni.content(), "");
  EXPECT_TRUE(desktop.settings.saves().empty());
}

TEST_F(StartupTest, TheContainerEntryHasNoSeparatorAndNoQuotes) {
  desktop.identity.facts.programFolder = "/opt/my tools";

  start();

  EXPECT_EQ(desktop.winIni.find("Extensions", "DVK"), "/opt/my toolsZelvane.exe ^.DVK");
}

TEST_F(StartupTest, AContainerEntryThatIsThereStaysAlsoAnEmptyOne) {
  for (const char* entry : {"somebody else's", "", "notfound"}) {
    desktop.winIni.write("Extensions", "DVK", entry);

    start();

    EXPECT_EQ(desktop.winIni.find("Extensions", "DVK"), entry);
  }
}

TEST_F(StartupTest, AnEntryThatReadsNotFoundIsTakenForNone) {
  desktop.winIni.write("Extensions", "DVK", "NotFound");

  start();

  EXPECT_EQ(desktop.winIni.find("Extensions", "DVK"), "/opt/zelvaneZelvane.exe ^.DVK");
}

TEST_F(StartupTest, AProfileThatCannotBeWrittenIsNotReported) {
  desktop.winIni.refuseWrites();

  start();

  EXPECT_TRUE(desktop.dialogs.boxes().empty());
  EXPECT_TRUE(window.mainPage.form.visible());
}

TEST_F(StartupTest, DamagedSettingsAreToldInABoxOfTheirOwnBeforeTheWindowLoads) {
  desktop.settings.damage();
  bool visible = true;
  std::string caption;
  desktop.dialogs.whileOpen([&] {
    visible = window.mainPage.form.visible();
    caption = window.mainPage.form.caption();
  });

  start();

  EXPECT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_FALSE(visible);
  EXPECT_EQ(caption, "Zelvane");
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

TEST_F(StartupTest, ADamagedRegistryIsToldInABoxOfItsOwnBeforeTheWindowLoads) {
  desktop.registry.damage();
  std::string caption;
  desktop.dialogs.whileOpen([&] { caption = window.mainPage.form.caption(); });

  start();

  ASSERT_EQ(desktop.dialogs.boxes().size(), 1U);
  EXPECT_EQ(desktop.dialogs.boxes()[0].title, "Zelvane");
  EXPECT_EQ(desktop.dialogs.boxes()[0].icon, platform::MessageIcon::exclamation);
  EXPECT_EQ(caption, "Zelvane");
  EXPECT_EQ(desktop.registry.text(Root::currentUser, kBrowserMain, "Start Page"), "about:blank");
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

TEST_F(StartupTest, OfTwoDamagedStoresTheSettingsAreToldFirst) {
  desktop.settings.damage();
  desktop.registry.damage();

  start();

  ASSERT_EQ(desktop.dialogs.boxes().size(), 2U);
  EXPECT_NE(desktop.dialogs.boxes()[0].text.find("settings"), std::string::npos);
  EXPECT_NE(desktop.dialogs.boxes()[1].text.find("registry"), std::string::npos);
}

TEST_F(StartupTest, StoresThatCannotBeReadAreToldAndTheWindowLoadsAllTheSame) {
  desktop.settings.refuseEverything();
  desktop.registry.refuseEverything();

  start();

  EXPECT_EQ(desktop.dialogs.boxes().size(), 2U);
  EXPECT_TRUE(window.mainPage.form.visible());
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

}  // namespace
}  // namespace zelvane::main_window
