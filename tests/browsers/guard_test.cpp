#include "platform/error.h"
#include "platform/shared/browsers/browser_folder.h"
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::Error;

class GuardTest : public testing::Test, public BrowserBed {
 protected:
  std::string place(std::string_view name) const { return home + "/" + std::string(name); }

  void eraseAsCache(const std::string& path) {
    const auto opened = platform::openBrowserFolder(wholeTree, path, {});
    platform::LiveFolder live;
    live.addFolder("all", [&](platform::FolderTree& tree) {
      return platform::openBrowserFolder(tree, path, {});
    });
    const auto root = live.open(wholeTree)->openSubfolder("all");
    const platform::FolderListing listing = root->list(pump);
    for (const std::string_view file : listing.files) root->removeFile(std::string(file));
  }
};

TEST_F(GuardTest, AFolderWithAnySettingsInItIsNotListed) {
  for (const char* name : {"Bookmarks", "Preferences", "Local State", "Login Data", "places.sqlite",
                           "key4.db", "logins.json", "cert9.db", "prefs.js", "Web Data"}) {
    const std::string profile = place(std::string("p-") + name);
    writeFile(profile + "/" + name);
    writeFile(profile + "/cache");

    EXPECT_THROW(eraseAsCache(profile), Error) << name;
    EXPECT_TRUE(has(profile + "/cache")) << name;
  }
}

TEST_F(GuardTest, AtAnyDepthSuchAFolderIsLeft) {
  writeFile(place("cache/inner/Bookmarks"));
  writeFile(place("cache/inner/entry"));
  const auto root = platform::openBrowserFolder(wholeTree, place("cache"), {});
  const auto inner = root->openSubfolder("inner");

  EXPECT_THROW(inner->list(pump), Error);
  EXPECT_THROW(inner->removeFile("Bookmarks"), Error);
}

TEST_F(GuardTest, AProfileInPlaceOfACacheIsLeftWhole) {
  installChromium();
  const std::string cache = chromiumCache + "/Cache";
  std::filesystem::create_directories(cache);
  makeChromiumProfile(cache);

  erase(platform::SpecialFolder::internetCache);

  EXPECT_TRUE(has(cache + "/History"));
  EXPECT_TRUE(has(cache + "/Bookmarks"));
}

TEST_F(GuardTest, NeitherAreEntriesShownToWhichNoPatternApplies) {
  writeFile(place("storage/https+++a/file"));
  writeFile(place("storage/moz-extension+++b/file"));
  const auto root = platform::openBrowserFolder(wholeTree, place("storage"), {"http*"});

  const platform::FolderListing listing = root->list(pump);

  EXPECT_EQ(listing.subfolders.size(), 1U);
  EXPECT_THROW(root->openSubfolder("moz-extension+++b"), Error);
  EXPECT_THROW(root->removeFolder("moz-extension+++b"), Error);
}

TEST_F(GuardTest, ACacheThatIsALinkIsLeft) {
  installFirefox();
  writeFile(place("Documents/letter.txt"));
  const std::string parent = firefoxCache;
  std::filesystem::create_directories(parent);
  own->makeLink(parent + "/cache2", place("Documents"));

  erase(platform::SpecialFolder::internetCache);

  EXPECT_TRUE(has(place("Documents/letter.txt")));
}

}  // namespace
}  // namespace zelvane::test
