// Names that are not ASCII, through every library that opens what browsers keep.
#include <windows.h>

#include "platform/windows/long_path.h"
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::SpecialFolder;

class NamesTest : public testing::Test, public BrowserBed {
 protected:
  static void move(const std::string& from, const std::string& to) {
    ASSERT_NE(MoveFileW(platform::longPath(from).c_str(), platform::longPath(to).c_str()), 0);
  }
};

// The tests themselves look at files by the names of one code page, so the profile is back in place
// before they do.
TEST_F(NamesTest, AProfileWithLettersOfSeveralAlphabetsIsErasedWhole) {
  const std::string name = "Zo\xC3\xAB \xD0\x96 \xE6\xBC\xA2";
  installChromium();
  listForChromium(chromiumRoot, {name});
  move(chromium, chromiumRoot + "/" + name);

  erase(SpecialFolder::history);
  erase(SpecialFolder::cookies);
  erase(SpecialFolder::internetCache);
  traces.eraseTyped();

  move(chromiumRoot + "/" + name, chromium);
  EXPECT_EQ(filesWith("seen"), "");
  EXPECT_EQ(entriesOf(chromium + "/Local Storage/leveldb").size(), 3U);
}

}  // namespace
}  // namespace zelvane::test
