// The end of the program when its store fails.
#include <memory>

#include "tests/unit/faults/settled_desktop.h"

namespace zelvane::faults {
namespace {

using controls::UnloadMode;

using Lines = std::vector<std::string>;

// "Run on Startup" was unticked, and the window unloads.
struct ExitScript : LoadedScript {
  ExitScript() { window.mainPage.chkStartup.click(); }

  // The end of the process comes through every frame of the program, as a kill would.
  void run(UnloadMode mode = UnloadMode::code) {
    EXPECT_THROW(window.mainPage.form.unload(mode), platform::ProcessEnded);
  }
};

std::unique_ptr<ExitScript> atTheExit() { return std::make_unique<ExitScript>(); }

Facts expectedAfterExit(const Facts& before, const std::vector<Call>& failed) {
  Facts facts = before;
  facts["ended"] = "yes";
  if (didFail(failed, "SettingsBackend::save", "Options/StartUp")) {
    facts["box 00"] = boxFact("none", "Error: 61 - Disk full");
    return facts;
  }
  facts[storedFact("Options", "StartUp")] = "0";
  facts["save 00"] = storedFact("Options", "StartUp") + " = 0";
  const std::string list = inUserRoot(kRun);
  if (!didFail(failed, "Registry::open", list) &&
      !didFail(failed, "Registry::deleteValue", list + "\\Zelvane")) {
    facts.erase("value " + list + "\\Zelvane");
  }
  return facts;
}

TEST(AnExitWithAFault, EndsTheProcessAndTellsOfTheStoreAloneAndTouchesNothingElse) {
  whicheverCallFails(atTheExit, [](const ExitScript& script, const Facts& before) {
    EXPECT_EQ(differences(expectedAfterExit(before, script.failed()), script.facts()), Lines{});
  });
}

TEST(AnExitWithAFault, EndsTheProcessHoweverTheWindowIsUnloaded) {
  for (const UnloadMode mode : {UnloadMode::code, UnloadMode::windows, UnloadMode::taskManager}) {
    ExitScript script;
    script.desktop.faults.failCall(1);

    script.run(mode);

    EXPECT_EQ(script.failed().size(), 1U);
    EXPECT_EQ(script.desktop.memory.dialogs.boxes().size(), 1U);
  }
}

TEST(AnExitWithAFault, LeavesTheChoiceOfTheLastExitForTheNextStart) {
  ExitScript script;
  script.desktop.faults.failCall(1);
  script.run();

  script.desktop.faults.startOver();
  main_window::frmMain next(script.desktop.ports());
  main_window::GenFunc::Main(script.desktop.ports(), next);

  EXPECT_TRUE(next.mainPage.chkStartup.checked());
}

}  // namespace
}  // namespace zelvane::faults
