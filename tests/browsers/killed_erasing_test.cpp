// An erasure that is killed beside each of its changes of the disk in turn.
#include "platform/error.h"
#include "tests/browsers/browser_bed.h"
#include "tests/support/kill/kill_tracer.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::SpecialFolder;
using Rows = std::vector<std::string>;
using Side = KillTracer::Side;

class KilledErasing : public testing::Test, public BrowserBed {
 protected:
  // What of one file can be told apart before and after, and must not be anything else.
  struct Look {
    std::string name;
    std::function<std::string()> now;
  };

  std::string rows(const std::string& path, const std::string& query) const {
    std::string all = rowsOf(path, "PRAGMA integrity_check")[0];
    for (const std::string& row : rowsOf(path, query)) all += "\n" + row;
    return all;
  }

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

  static Rows lookAll(const std::vector<Look>& looks) {
    Rows seen;
    for (const Look& look : looks) seen.push_back(look.now());
    return seen;
  }

  // Kills at every `stride`th call.
  void killAtEach(std::size_t stride, const std::vector<Look>& looks) {
    keepHome();
    const Rows before = lookAll(looks);
    const KillTracer tracer({.below = home, .skipSyncs = true});
    const auto program = [this] { eraseEverything(); };
    const std::size_t calls = tracer.run(program).calls.size();
    ASSERT_EQ(filesWith("seen"), "");
    const Rows after = lookAll(looks);
    ASSERT_GT(calls, 20U);
    for (std::size_t call = 1; call <= calls; call += stride) {
      for (const Side side : {Side::before, Side::after}) {
        SCOPED_TRACE("call " + std::to_string(call) +
                     (side == Side::before ? ", before" : ", after"));
        restoreHome();
        EXPECT_TRUE(tracer.runUntil({side, call}, program).killed);
        expectEither(looks, before, after);
        tracer.run(program);
        EXPECT_EQ(filesWith("seen"), "");
        EXPECT_EQ(lookAll(looks), after);
        if (HasFailure()) return;
      }
    }
  }

  static void expectEither(const std::vector<Look>& looks, const Rows& before, const Rows& after) {
    const Rows now = lookAll(looks);
    for (std::size_t look = 0; look < looks.size(); ++look) {
      EXPECT_TRUE(now[look] == before[look] || now[look] == after[look])
          << looks[look].name << ":\n"
          << now[look];
    }
  }

  std::vector<Look> looksAtFirefox() const {
    const std::string places = firefox + "/places.sqlite";
    return {
        {"pages",
         [=, this] {
           return rows(
               places,
               "SELECT url, visit_count FROM moz_places UNION ALL SELECT id, visit_date FROM "
               "moz_historyvisits UNION ALL SELECT host, id FROM moz_origins");
         }},
        {"bookmarks", [=, this] { return rows(places, "SELECT * FROM moz_bookmarks"); }},
        {"icons",
         [this] { return rows(firefox + "/favicons.sqlite", "SELECT icon_url FROM moz_icons"); }},
        {"cookies",
         [this] { return rows(firefox + "/cookies.sqlite", "SELECT host FROM moz_cookies"); }}};
  }

  std::vector<Look> looksAtChromium() const {
    return {{"pages",
             [this] {
               return rows(chromium + "/History",
                           "SELECT url FROM urls UNION ALL SELECT id FROM visits");
             }},
            {"icons",
             [this] { return rows(chromium + "/Favicons", "SELECT page_url FROM icon_mapping"); }},
            {"local storage",
             [this] {
               std::string all;
               for (const auto& [key, value] : entriesOf(chromium + "/Local Storage/leveldb")) {
                 all.append(key).append("=").append(value).append("\n");
               }
               return all;
             }},
            {"settings", [this] { return read(chromium + "/Preferences"); }},
            {"bookmarks", [this] { return read(chromium + "/Bookmarks"); }}};
  }
};

// Every 29th: a prime, so that over the databases each kind of call has its turn.
TEST_F(KilledErasing, LeavesEachOfFirefoxsDatabasesAsBeforeOrAfter) {
  installFirefox();

  killAtEach(29, looksAtFirefox());
}

TEST_F(KilledErasing, LeavesEachOfChromiumsDatabasesAsBeforeOrAfter) {
  installChromium();

  killAtEach(29, looksAtChromium());
}

TEST_F(KilledErasing, BigVolumeLeavesFirefoxAsBeforeOrAfterAtEveryCall) {
  installFirefox();

  killAtEach(1, looksAtFirefox());
}

TEST_F(KilledErasing, BigVolumeLeavesChromiumAsBeforeOrAfterAtEveryCall) {
  installChromium();

  killAtEach(1, looksAtChromium());
}

}  // namespace
}  // namespace zelvane::test
