// What a browser that is open holds on Windows. To the system it is all the same which process
// holds a file.
#include <windows.h>

#include "platform/windows/handle.h"
#include "platform/windows/long_path.h"
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::Handle;
using platform::LeftTrace;
using platform::SpecialFolder;

class OpenBrowserTest : public testing::Test, public BrowserBed {
 protected:
  static Handle holding(const std::string& path, DWORD access, DWORD share) {
    return Handle(CreateFileW(platform::longPath(path).c_str(), access, share, nullptr, OPEN_ALWAYS,
                              0, nullptr));
  }

  void eraseEverything() {
    erase(SpecialFolder::history);
    erase(SpecialFolder::cookies);
    erase(SpecialFolder::internetCache);
    traces.eraseTyped();
  }
};

TEST_F(OpenBrowserTest, AFirefoxThatHoldsItsLockIsLeftWholeAndToldOnce) {
  installFirefox();
  const Handle lock = holding(firefox + "/parent.lock", GENERIC_READ | GENERIC_WRITE, 0);
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
  EXPECT_EQ(left.take(), (std::vector<LeftTrace>{{"Firefox (p0)", ""}}));
}

TEST_F(OpenBrowserTest, AChromiumThatHoldsItsLockIsLeftWholeAndToldOnce) {
  installChromium();
  const Handle lock = holding(chromiumRoot + "/lockfile", GENERIC_WRITE, FILE_SHARE_READ);
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
  EXPECT_EQ(left.take(), (std::vector<LeftTrace>{{"Chromium (Default)", ""}}));
}

TEST_F(OpenBrowserTest, ALockThatNobodyHoldsIsNone) {
  installFirefox();
  installChromium();
  writeFile(firefox + "/parent.lock", "");
  writeFile(chromiumRoot + "/lockfile", "");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), "");
}

TEST_F(OpenBrowserTest, ADatabaseThatAnyProgramOnlyReadsKeepsTheWholeProfile) {
  installChromium();
  const Handle reader =
      holding(chromium + "/Favicons", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(filesWith("seen"), before);
}

TEST_F(OpenBrowserTest, AFolderOfSitesStorageThatIsHeldKeepsTheWholeProfile) {
  installChromium();
  const Handle lock = holding(chromium + "/Local Storage/leveldb/LOCK", GENERIC_READ, 0);
  const std::string before = filesWith("seen");

  eraseEverything();

  EXPECT_EQ(left.take(), (std::vector<LeftTrace>{{"Chromium (Default)", ""}}));
}

TEST_F(OpenBrowserTest, ADatabaseIsFreeAgainAfterItWasLookedAt) {
  installFirefox();
  erase(SpecialFolder::history);

  const Handle browser = holding(firefox + "/places.sqlite", GENERIC_READ | GENERIC_WRITE, 0);

  EXPECT_TRUE(browser.isOpen());
}

TEST_F(OpenBrowserTest, AnOpenOneDoesNotKeepAnotherFromBeingErased) {
  installFirefox();
  installChromium();
  const Handle lock = holding(firefox + "/parent.lock", GENERIC_READ | GENERIC_WRITE, 0);

  eraseEverything();

  EXPECT_EQ(filesWith("seen").find("Chromium"), std::string::npos);
  EXPECT_NE(filesWith("seen").find("places.sqlite"), std::string::npos);
}

}  // namespace
}  // namespace zelvane::test
