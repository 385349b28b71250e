#include <algorithm>

#include "platform/shared/browsers/path_pattern.h"
#include "tests/browsers/browser_bed.h"

namespace zelvane::test {
namespace {

using platform::Family;
using platform::Installation;
using platform::Profile;

std::vector<Installation> installationsThere() {
  const ThrowAwayFolder folder;
  const std::vector<std::string> starts = bedDesktop(folder)->startsOfInstallations();
  std::vector<Installation> found;
  std::ranges::copy_if(
      platform::knownInstallations(), std::back_inserter(found), [&](const Installation& one) {
        return std::ranges::count(starts, one.root.substr(0, one.root.find('/'))) > 0;
      });
  return found;
}

class ProfilesTest : public testing::Test, public BrowserBed {
 protected:
  std::vector<std::string> foldersFound() const {
    std::vector<std::string> found;
    for (const Profile& profile : platform::profilesThere(desktop, files))
      found.push_back(profile.folder);
    return found;
  }
};

class EachInstallation : public testing::TestWithParam<Installation>, public BrowserBed {};

TEST_P(EachInstallation, IsFoundWithTwoProfilesAndTheirCaches) {
  const auto filledIn = [this](std::string_view pattern) {
    return platform::filledIn(desktop.folders(), pattern, {"-beta", "-beta"});
  };
  const std::string root = filledIn(GetParam().root);
  const std::string caches = filledIn(GetParam().cache);
  const bool isFirefox = GetParam().family == Family::firefox;
  const std::vector<std::string> names = isFirefox
                                             ? std::vector<std::string>{"a.one", "b.two"}
                                             : std::vector<std::string>{"Default", "Profile 1"};
  const std::string sign = isFirefox ? "/prefs.js" : "/Preferences";
  for (const std::string& name : names) {
    writeFile(std::string(root).append("/").append(name).append(sign));
  }
  isFirefox ? listForFirefox(root, names) : listForChromium(root, names);

  const std::vector<Profile> found = platform::profilesThere(desktop, files);

  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].browser, GetParam().browser);
  EXPECT_EQ(found[0].folder, root + "/" + names[0]);
  EXPECT_EQ(found[1].folder, root + "/" + names[1]);
  EXPECT_EQ(found[1].cache, (caches.empty() ? root : caches) + "/" + names[1]);
}

std::string nameOf(const testing::TestParamInfo<Installation>& info) {
  std::string name = std::to_string(info.index);
  std::ranges::copy_if(info.param.browser, std::back_inserter(name),
                       [](unsigned char letter) { return std::isalnum(letter) != 0; });
  return name;
}

INSTANTIATE_TEST_SUITE_P(OfThisDesktop, EachInstallation, testing::ValuesIn(installationsThere()),
                         nameOf);

TEST_F(ProfilesTest, AProfileOutsideTheUsualPlaceIsFoundWithItsCacheInIt) {
  const std::string elsewhere = home + "/elsewhere/mine";
  makeFirefoxProfile(elsewhere);
  listForFirefox(firefoxRoot, {elsewhere});

  const std::vector<Profile> found = platform::profilesThere(desktop, files);

  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].folder, elsewhere);
  EXPECT_EQ(found[0].cache, elsewhere);
}

TEST_F(ProfilesTest, AProfileThatTwoListsNameIsFoundOnce) {
  installFirefox();
  listForFirefox(own->otherFirefoxRoot(), {firefox});

  EXPECT_EQ(foldersFound(), std::vector<std::string>{firefox});
}

TEST_F(ProfilesTest, AListThatNamesForeignPlacesAddsNone) {
  writeFile(folder / "outside/prefs.js");
  std::filesystem::create_directories(firefoxRoot);
  own->makeLink(firefoxRoot + "/link", folder / "outside");
  listForFirefox(firefoxRoot, {"/", "..", "../..", "../../..", "link", "/usr", home, "missing",
                               "/proc/self/cwd"});

  EXPECT_EQ(foldersFound(), std::vector<std::string>());
}

TEST_F(ProfilesTest, AFolderOfDocumentsThatAListNamesIsNoProfile) {
  writeFile(home + "/Documents/letter.txt");
  listForFirefox(firefoxRoot, {home + "/Documents"});

  EXPECT_EQ(foldersFound(), std::vector<std::string>());
}

TEST_F(ProfilesTest, AListOfChromiumThatLeadsElsewhereAddsNone) {
  writeFile(home + "/Documents/letter.txt");
  listForChromium(chromiumRoot, {"..", "../..", "../../Documents", "/"});

  EXPECT_EQ(foldersFound(), std::vector<std::string>());
}

TEST_F(ProfilesTest, WithoutAReadableListTheDefaultProfileIsFound) {
  installChromium();
  writeFile(chromiumRoot + "/Local State", "no JSON");

  EXPECT_EQ(foldersFound(), std::vector<std::string>{chromium});
}

TEST_F(ProfilesTest, AListOf100MegabytesIsNotRead) {
  installChromium();
  std::filesystem::resize_file(chromiumRoot + "/Local State", 100'000'000);

  EXPECT_EQ(foldersFound(), std::vector<std::string>{chromium});
}

TEST_F(ProfilesTest, AFolderInPlaceOfAListAddsNone) {
  std::filesystem::create_directories(firefoxRoot + "/profiles.ini");

  EXPECT_EQ(foldersFound(), std::vector<std::string>());
}

}  // namespace
}  // namespace zelvane::test
