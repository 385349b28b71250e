// The whole program, killed beside each of its changes of the disk and of the registry in turn.
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <windows.h>
#include <gtest/gtest.h>
#include <shellapi.h>

#include "platform/windows/wide_text.h"
#include "tests/attack/kills/users_steps.h"
#include "tests/attack/windows/killed_everywhere.h"
#include "tests/attack/windows/stories.h"
#include "tests/attack/windows/world_values.h"
#include "tests/support/throw_away_folder.h"
#include "tests/support/windows/disk.h"
#include "tests/support/windows/throw_away_key.h"

namespace zelvane::test {
namespace {

using platform::Registry;
using platform::wideText;
using Texts = std::vector<std::string>;
using Prepare = std::function<void(const World&)>;

constexpr const char* kTypedUrls = R"(Software\Microsoft\Internet Explorer\TypedURLs)";
constexpr const char* kRunMru = R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)";

bool isBinEmpty() {
  SHQUERYRBINFO info{};
  info.cbSize = sizeof info;
  return FAILED(SHQueryRecycleBinW(nullptr, &info)) || info.i64NumItems == 0;
}

void discard(const std::string& path) {
  std::wstring list = wideText(path);
  list.push_back(L'\0');
  SHFILEOPSTRUCTW wish{};
  wish.wFunc = FO_DELETE;
  wish.pFrom = list.c_str();
  wish.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
  if (SHFileOperationW(&wish) != 0) throw std::runtime_error("not discarded: " + path);
}

// Things for a run to erase, and one that stays.
void litter(const World& world) {
  for (const std::string name :
       {R"(special-8\letter.lnk)", R"(special-33\cookie)", R"(special-34\day\site\page)",
        R"(temporary\forgotten.tmp)", R"(temporary\read-only.tmp)", R"(temporary\folder\hidden)",
        "discarded"}) {
    makeFile(world.folder + "\\" + name);
  }
  setAttributes(world.folder + R"(\temporary\read-only.tmp)", FILE_ATTRIBUTE_READONLY);
  setAttributes(world.folder + R"(\temporary\folder\hidden)", FILE_ATTRIBUTE_HIDDEN);
  discard(world.folder + R"(\discarded)");
  platform::WindowsRegistry registry(world.key);
  for (const char* path : {kTypedUrls, kRunMru, R"(Software\Microsoft\Internet Explorer\Main)",
                           R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)"}) {
    const auto opened = registry.create(Registry::Root::currentUser, path);
    registry.set(opened.key, "url1", Registry::Type::string, {});
  }
}

// A world in which every value has been stored before, and some that only a later version knows.
void use(const World& world) {
  litter(world);
  makeFile(world.folder + R"(\win.ini)", "; kept\r\n[Other]\r\na=b\r\n");
  HeadlessDesktop desktop(world);
  const std::string program = desktop.identity.programFolder();
  for (int option = 0; option < 16; ++option) {
    desktop.settings.save(program, "Settings", "Index" + std::to_string(option), "0");
  }
  for (const char* option : {"Index2", "Index3", "Index5", "Index11"}) {
    desktop.settings.save(program, "Settings", option, "1");
  }
  desktop.settings.save("Zelvane", "HomePage", "StartPage", "https://former.example/");
  desktop.settings.save("Zelvane", "Options", "StartUp", "0");
  desktop.settings.save("Zelvane", "Schedule", "LastRunTime", "never");
  desktop.settings.save("Zelvane", "future", "x", "y");
}

// The settings as a newer version wrote them.
void makeNotUnderstood(const World& world) {
  HeadlessDesktop desktop(world);
  desktop.settings.save("Zelvane", "Schedule", "RunOn", "7");
  const DWORD format = 2;
  const auto key = platform::createKey(HKEY_CURRENT_USER, wideText(desktop.settingsIn(world)));
  platform::writeValue(key.key.get(), L"Format", REG_DWORD, std::as_bytes(std::span(&format, 1)));
}

class KilledProgram : public testing::Test {
 protected:
  KilledProgram() {
    // One with anything in it is not the tests' own, and they do not touch it.
    if (!isBinEmpty()) throw std::runtime_error("this recycle bin is somebody's");
  }
  // A kill may have left something that the test put there.
  ~KilledProgram() override { SHEmptyRecycleBinW(nullptr, nullptr, SHERB_NOCONFIRMATION); }

  World prepared(const Prepare& prepare) {
    const std::string number = std::to_string(++worlds_);
    World world{folder_ / number, key_ / number};
    makeFolders(world.folder + R"(\home)");
    makeFolders(world.folder + R"(\system)");
    makeFile(world.folder + R"(\data\wavpath.txt)", "\r\n");
    prepare(world);
    return world;
  }

  // What is stored before the first step, and after each.
  std::vector<StoredValues> statesOf(const Prepare& prepare) {
    const World world = prepared(prepare);
    HeadlessProgram program(world);
    std::vector<StoredValues> states = {storedIn(world)};
    for (const auto& step : usersSteps<HeadlessProgram>()) {
      step(program);
      states.push_back(storedIn(world));
    }
    EXPECT_EQ(program.told(), Texts{});
    EXPECT_TRUE(program.hasEnded());
    EXPECT_EQ(leftoversIn(world), StoredValues{});
    EXPECT_TRUE(isBinEmpty());
    return states;
  }

  // The next start, and all that follows, is as if nobody had been killed.
  void expectThatTheNextRunMendsAll(const World& world, const StoredValues& last) const {
    HeadlessProgram program(world);

    program.start();
    EXPECT_EQ(program.told(), Texts{});
    EXPECT_EQ(program.status(), "Ready");
    doAllAgain(program);

    EXPECT_EQ(program.told(), Texts{});
    EXPECT_TRUE(isBinEmpty());
    EXPECT_EQ(neitherBeforeNorAfter(storedIn(world), last, last), Texts{});
  }

  void killEverywhere(const Story& story, const Prepare& prepare, const Judge& judge) {
    test::killEverywhere(
        story, 1, [&] { return prepared(prepare); }, judge);
  }

  // But for one before it has the mark with which a kill deletes it, and between losing that and
  // getting its name.
  static void expectNoLeftovers(const World& world, const Life& life) {
    const std::string& call = life.calls.back();
    const bool mayStay = call == "NtCreateFile" || call == "SetFileInformationByHandle" ||
                         call == "NtSetInformationFile";
    EXPECT_LE(leftoversIn(world).size(), mayStay ? 1U : 0U);
  }

  void expectThatNoKillLosesAnything(const Prepare& prepare) {
    const std::vector<StoredValues> states = statesOf(prepare);

    killEverywhere(kUse, prepare, [&](const World& world, const Life& life, Side side) {
      EXPECT_EQ(neitherBeforeNorAfter(storedIn(world), states[life.steps], states[life.steps + 1]),
                Texts{});
      expectNoLeftovers(world, life);
      // After a call the disk is as it is before the next one; one of the two is enough for what
      // takes the longest.
      if (side == Side::before) expectThatTheNextRunMendsAll(world, states.back());
    });
  }

 private:
  ThrowAwayFolder folder_;
  ThrowAwayKey key_;
  int worlds_ = 0;
};

TEST_F(KilledProgram, LosesNothingAtItsFirstStart) { expectThatNoKillLosesAnything(litter); }

TEST_F(KilledProgram, LosesNothingInAWorldThatHasBeenUsed) { expectThatNoKillLosesAnything(use); }

TEST_F(KilledProgram, KeepsSettingsOfANewerVersionUnderOneOfTheirTwoNames) {
  killEverywhere(kStart, makeNotUnderstood, [](const World& world, const Life&, Side) {
    const StoredValues values = storedIn(world);
    const auto keeps = [&](const std::string& settings) {
      return values.contains(settings + R"(\^Zelvane\^Schedule\^Run^On)");
    };

    EXPECT_NE(keeps("Settings"), keeps("Settings.set-aside-1"));
  });
}

TEST_F(KilledProgram, LeavesAFileThatItReplacesOldOrNewAndNothingBesideIt) {
  const auto prepare = [](const World& world) {
    makeFile(world.folder + R"(\target)", "old content");
  };

  killEverywhere(kReplaceFile, prepare, [](const World& world, const Life& life, Side) {
    const StoredValues::value_type sound = {R"(data\wavpath.txt)", "\r\n"};
    EXPECT_EQ(neitherBeforeNorAfter(storedIn(world), {{"target", "old content"}, sound},
                                    {{"target", "new content"}, sound}),
              Texts{});
    expectNoLeftovers(world, life);
    for (const auto& [name, content] : leftoversIn(world)) {
      EXPECT_TRUE(content.empty() || content == "new content") << content;
    }
  });
}

}  // namespace
}  // namespace zelvane::test
