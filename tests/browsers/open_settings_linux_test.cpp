// Settings of browsers that are open, and the permissions of their files.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/browsers/settings_bed.h"
#include "tests/support/linux/child_process.h"

namespace zelvane::test {
namespace {

class OpenSettingsTest : public testing::Test, public SettingsBed {
 protected:
  static unsigned modeOf(const std::string& path) {
    struct stat facts = {};
    stat(path.c_str(), &facts);
    return facts.st_mode & 07777U;
  }
};

TEST_F(OpenSettingsTest, ABrowserThatIsOpenIsLeftSilentlyAndCaughtByTheNextStart) {
  setUpChromium("{}");
  {
    ChildProcess browser([this](const Say& say) {
      open((chromium + "/Secure Preferences").c_str(), O_RDONLY);
      say("holds");
      stayUntilKilled();
    });
    browser.hearLine();

    setHomePage("https://mine.example/");

    EXPECT_EQ(read(preferences), "{}");
    EXPECT_FALSE(has(formerPages.path()));
    EXPECT_TRUE(notifications.shown.empty());
  }
  homePage.reimpose();

  EXPECT_EQ(chromiumNow().at("homepage"), "https://mine.example/");
}

TEST_F(OpenSettingsTest, AChangedFileKeepsItsPermissions) {
  setUpFirefox("");
  setUpChromium("{}");
  chmod(prefs.c_str(), 0640);
  chmod(preferences.c_str(), 0600);

  setHomePage("https://mine.example/");

  EXPECT_EQ(modeOf(prefs), 0640U);
  EXPECT_EQ(modeOf(preferences), 0600U);
}

TEST_F(OpenSettingsTest, TheNotesAndTheirFolderAreForTheirUserAlone) {
  setUpChromium("{}");
  std::filesystem::remove(dataFolder);

  setHomePage("https://mine.example/");

  EXPECT_EQ(modeOf(dataFolder), 0700U);
  EXPECT_EQ(modeOf(formerPages.path()), 0600U);
}

}  // namespace
}  // namespace zelvane::test
