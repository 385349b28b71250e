// An erasure in browsers' profiles that is killed beside its changes of the disk.
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/windows/wide_text.h"
#include "tests/attack/windows/killed_everywhere.h"
#include "tests/attack/windows/stories.h"
#include "tests/browsers/fixture_profiles.h"
#include "tests/browsers/profile_looks.h"
#include "tests/support/windows/disk.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::wideText;
using Texts = std::vector<std::string>;

// A prime, so that over the databases each kind of call has its turn. Every single one is tried
// where a process costs less.
constexpr std::size_t kStride = 71;

class KilledErasing : public testing::Test {
 protected:
  // That of "kept" is what all others are copied from.
  std::string homeOf(const std::string& world) const { return folder_ / world + R"(\home)"; }

  // `looks` gives what to look at in a home.
  template <typename Looks>
  void killAgainAndAgain(const Looks& looks) {
    int worlds = 0;
    const auto prepared = [&] {
      const std::string name = std::to_string(++worlds);
      fs::copy(wideText(folder_ / "kept"), wideText(folder_ / name), fs::copy_options::recursive);
      return World{folder_ / name, ""};
    };
    const Texts before = seenBy(looks(homeOf("kept")));
    live(kErase, prepared(), std::nullopt);
    ASSERT_EQ(filesWith("seen", homeOf("1")), "");
    const Texts after = seenBy(looks(homeOf("1")));

    killEverywhere(kErase, kStride, prepared, [&](const World& world, const Life&, Side) {
      const std::string home = world.folder + R"(\home)";
      EXPECT_EQ(neitherBeforeNorAfter(looks(home), before, after), Texts{});
      live(kErase, world, std::nullopt);
      EXPECT_EQ(filesWith("seen", home), "");
      EXPECT_EQ(seenBy(looks(home)), after);
    });
  }

 private:
  ThrowAwayFolder folder_;
};

TEST_F(KilledErasing, LeavesEachOfFirefoxsDatabasesAsBeforeOrAfter) {
  const std::string root = homeOf("kept") + R"(\roaming\Mozilla\Firefox)";
  makeFirefoxProfile(root + R"(\Profiles\abcd.default)");
  listForFirefox(root, {"Profiles/abcd.default"});
  killAgainAndAgain([](const std::string& home) {
    return looksAtFirefox(home + R"(\roaming\Mozilla\Firefox\Profiles\abcd.default)");
  });
}

TEST_F(KilledErasing, LeavesEachOfChromiumsDatabasesAsBeforeOrAfter) {
  const std::string root = homeOf("kept") + R"(\local\Chromium\User Data)";
  makeChromiumProfile(root + R"(\Default)");
  listForChromium(root, {"Default"});
  killAgainAndAgain([](const std::string& home) {
    return looksAtChromium(home + R"(\local\Chromium\User Data\Default)");
  });
}

}  // namespace
}  // namespace zelvane::test
