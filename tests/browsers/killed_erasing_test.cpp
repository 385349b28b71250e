// An erasure that is killed beside each of its changes of the disk in turn.
#include "tests/browsers/browser_bed.h"
#include "tests/browsers/profile_looks.h"
#include "tests/support/kill/kill_tracer.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::SpecialFolder;
using Rows = std::vector<std::string>;
using Side = KillTracer::Side;

class KilledErasing : public testing::Test, public BrowserBed {
 protected:
  void eraseEverything() {
    erase(SpecialFolder::history);
    erase(SpecialFolder::cookies);
    erase(SpecialFolder::internetCache);
    traces.eraseTyped();
  }

  void keepHome() { fs::copy(home, folder / "kept", fs::copy_options::recursive); }

  void restoreHome() {
    fs::remove_all(home);
    fs::copy(folder / "kept", home, fs::copy_options::recursive);
  }

  // Kills at every `stride`th call. In what order a folder lists its files differs from copy to
  // copy, and with it the number of calls by one or two; so the last two may not come.
  void killAtEach(std::size_t stride, const std::vector<Look>& looks) {
    keepHome();
    const Rows before = seenBy(looks);
    const KillTracer tracer({.below = home, .skipSyncs = true});
    const auto program = [this] { eraseEverything(); };
    const std::size_t calls = tracer.run(program).calls.size();
    ASSERT_EQ(filesWith("seen"), "");
    const Rows after = seenBy(looks);
    ASSERT_GT(calls, 20U);
    for (std::size_t call = 1; call <= calls; call += stride) {
      for (const Side side : {Side::before, Side::after}) {
        SCOPED_TRACE("call " + std::to_string(call) +
                     (side == Side::before ? ", before" : ", after"));
        restoreHome();
        EXPECT_TRUE(tracer.runUntil({side, call}, program).killed || call + 2 > calls);
        EXPECT_EQ(neitherBeforeNorAfter(looks, before, after), Rows{});
        tracer.run(program);
        EXPECT_EQ(filesWith("seen"), "");
        EXPECT_EQ(seenBy(looks), after);
        if (HasFailure()) return;
      }
    }
  }
};

// Every 29th: a prime, so that over the databases each kind of call has its turn.
TEST_F(KilledErasing, LeavesEachOfFirefoxsDatabasesAsBeforeOrAfter) {
  installFirefox();

  killAtEach(29, looksAtFirefox(firefox));
}

TEST_F(KilledErasing, LeavesEachOfChromiumsDatabasesAsBeforeOrAfter) {
  installChromium();

  killAtEach(29, looksAtChromium(chromium));
}

TEST_F(KilledErasing, BigVolumeLeavesFirefoxAsBeforeOrAfterAtEveryCall) {
  installFirefox();

  killAtEach(1, looksAtFirefox(firefox));
}

TEST_F(KilledErasing, BigVolumeLeavesChromiumAsBeforeOrAfterAtEveryCall) {
  installChromium();

  killAtEach(1, looksAtChromium(chromium));
}

}  // namespace
}  // namespace zelvane::test
