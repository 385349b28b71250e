#include <fcntl.h>
#include <unistd.h>

#include "tests/browsers/browser_bed.h"
#include "tests/support/linux/child_process.h"

namespace zelvane::test {
namespace {

using platform::LeftTrace;
using platform::SpecialFolder;

class OpenBrowserTest : public testing::Test, public BrowserBed {
 protected:
  // Another process that has done something with a file, and keeps it.
  static std::unique_ptr<ChildProcess> holding(
      const std::string& path, const std::function<void(int)>& hold = [](int) {}) {
    return std::make_unique<ChildProcess>([=](const Say& say) {
      hold(open(path.c_str(), O_RDWR | O_CREAT, 0600));
      say("holds");
      stayUntilKilled();
    });
  }

  void eraseEverything() {
    erase(SpecialFolder::history);
    erase(SpecialFolder::cookies);
    erase(SpecialFolder::internetCache);
    traces.eraseTyped();
  }
};

void lockAll(int file) {
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  fcntl(file, F_SETLK, &lock);
}

TEST_F(OpenBrowserTest, AFirefoxThatHoldsItsLockIsLeftWholeAndToldOnce) {
  installFirefox();
  const auto browser = holding(firefox + "/.parentlock", lockAll);
  browser->hearLine();
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
  EXPECT_EQ(left.take(), (std::vector<LeftTrace>{{"Firefox (p0)", ""}}));
}

TEST_F(OpenBrowserTest, ALockThatNobodyHoldsIsNone) {
  installFirefox();
  writeFile(firefox + "/.parentlock", "");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), "");
}

TEST_F(OpenBrowserTest, AChromiumWithAnOpenDatabaseIsLeftWholeAndTold) {
  installChromium();
  const auto browser = holding(chromium + "/History");
  browser->hearLine();
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
  EXPECT_EQ(left.take(), (std::vector<LeftTrace>{{"Chromium (Default)", ""}}));
}

TEST_F(OpenBrowserTest, AllProfilesOfAnOpenChromiumAreLeft) {
  installChromium();
  writeFile(chromiumRoot + "/Profile 1/History", "");
  const auto browser = holding(chromiumRoot + "/Profile 1/History");
  browser->hearLine();
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
  EXPECT_EQ(left.take(), (std::vector<LeftTrace>{{"Chromium (Default)", ""}}));
}

TEST_F(OpenBrowserTest, AChromiumOfAnotherMachineIsLeft) {
  installChromium();
  std::filesystem::create_symlink("another-machine-4711", chromiumRoot + "/SingletonLock");
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
}

TEST_F(OpenBrowserTest, ALockThatAKilledChromiumLeftIsNone) {
  installChromium();
  std::string host(256, '\0');
  gethostname(host.data(), host.size());
  std::filesystem::create_symlink(host.substr(0, host.find('\0')) + "-4711",
                                  chromiumRoot + "/SingletonLock");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), "");
}

TEST_F(OpenBrowserTest, AnOpenOneDoesNotKeepAnotherFromBeingErased) {
  installFirefox();
  installChromium();
  const auto browser = holding(firefox + "/.parentlock", lockAll);
  browser->hearLine();

  eraseEverything();

  EXPECT_EQ(filesWith("seen").find("chromium"), std::string::npos);
  EXPECT_NE(filesWith("seen").find("places.sqlite"), std::string::npos);
}

}  // namespace
}  // namespace zelvane::test
