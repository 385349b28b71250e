// Links as Linux has them, in the ways of browsers.
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::Profile;

class LinksOfUnix : public testing::Test, public BrowserBed {};

TEST_F(LinksOfUnix, LinksInACacheLeadNowhere) {
  installFirefox();
  const std::string letter = home + "/Documents/letter.txt";
  writeFile(letter, "dear");
  const std::string cache = firefoxCache + "/cache2";
  writeFile(cache + "/entries/one");
  std::filesystem::create_symlink(letter, cache + "/entries/link");
  std::filesystem::create_hard_link(letter, cache + "/entries/hard");
  std::filesystem::create_directory_symlink(home + "/Documents", cache + "/folder");

  erase(platform::SpecialFolder::internetCache);

  EXPECT_EQ(read(home + "/Documents/letter.txt"), "dear");
  EXPECT_TRUE(std::filesystem::is_empty(cache));
}

TEST_F(LinksOfUnix, TheSnapsCurrentRevisionIsSeenOnce) {
  const std::string snap = home + "/snap/brave";
  const std::string root = "/.config/BraveSoftware/Brave-Browser";
  writeFile(snap + "/7" + root + "/Default/Preferences", "{}");
  listForChromium(snap + "/7" + root, {"Default"});
  std::filesystem::create_symlink("7", snap + "/current");

  const std::vector<Profile> found = platform::profilesThere(desktop, files);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].folder, snap + "/7" + root + "/Default");
}

}  // namespace
}  // namespace zelvane::test
