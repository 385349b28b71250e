// Clicks and the tick after a run, each when a store fails.
#include <memory>
#include <optional>
#include <utility>

#include "tests/unit/faults/settled_desktop.h"

namespace zelvane::faults {
namespace {

using Lines = std::vector<std::string>;

// A setting as the model of a click stores it, unless the save fails.
void save(Facts& facts, const std::vector<Call>& failed, const std::string& subject,
          const std::string& fact, const std::string& text) {
  if (!didFail(failed, "SettingsBackend::save", subject)) {
    facts[numbered("save", beginningWith("save ", facts).size())] = fact + " = " + text;
    facts[fact] = text;
  }
}

void saveOption(Facts& facts, const std::vector<Call>& failed, std::size_t index,
                const std::string& state) {
  save(facts, failed, "Settings/Index" + std::to_string(index), storedOptionFact(index), state);
}

void writeValue(Facts& facts, const std::vector<Call>& failed, const std::string& path,
                const std::string& name, const std::string& text) {
  const std::string value = inUserRoot(path) + "\\" + name;
  if (!didFail(failed, "Registry::open", inUserRoot(path)) &&
      !didFail(failed, "Registry::set", value)) {
    facts["value " + value] = text;
  }
}

struct OptionScript : LoadedScript {
  explicit OptionScript(std::size_t option) : index(option) {}
  void run() { window.cleanerPage.chkSettings[index].click(); }

  std::size_t index;
};

Facts expectedAfterClick(Facts facts, const std::vector<Call>& failed, std::size_t index) {
  const std::string box = "chkSettings_" + std::to_string(index) + ".value";
  facts[box] = facts[box] == "1" ? "0" : "1";
  saveOption(facts, failed, index, facts[box]);
  return facts;
}

TEST(AnOptionThatCannotBeStored, KeepsShowingTheClickWithoutABoxAndHarmsNoOther) {
  for (std::size_t index = 0; index < cleaner::kOptionCount; ++index) {
    whicheverCallFails([index] { return std::make_unique<OptionScript>(index); },
                       [](const OptionScript& script, const Facts& before) {
                         EXPECT_EQ(
                             differences(expectedAfterClick(before, script.failed(), script.index),
                                         script.facts()),
                             Lines{});
                       });
  }
}

TEST(AnOptionThatCannotBeStored, IsStoredByTheNextClick) {
  OptionScript script(2);
  script.desktop.faults.failCall(1);
  script.run();

  script.run();

  EXPECT_EQ(script.facts()[storedOptionFact(2)], "0");
}

struct DefaultScript : LoadedScript {
  void run() { window.cleanerPage.cmdDefaultSettings.click(); }
};

// In the order of the button, every box being at the other state before.
Facts expectedAfterDefault(Facts facts, const std::vector<Call>& failed) {
  constexpr std::pair<std::size_t, const char*> kDefaults[] = {
      {2, "1"}, {6, "0"}, {7, "1"}, {8, "0"}, {9, "1"}, {10, "1"},
      {1, "1"}, {4, "0"}, {0, "1"}, {3, "1"}, {5, "1"}, {11, "1"}};
  for (const auto& [index, state] : kDefaults) {
    facts["chkSettings_" + std::to_string(index) + ".value"] = state;
    saveOption(facts, failed, index, state);
  }
  return facts;
}

TEST(DefaultsOfWhichOneCannotBeStored, AreAllShownAndTheOthersAllStored) {
  whicheverCallFails(
      [] { return std::make_unique<DefaultScript>(); },
      [](const DefaultScript& script, const Facts& before) {
        EXPECT_EQ(differences(expectedAfterDefault(before, script.failed()), script.facts()),
                  Lines{});
      });
}

struct HomePageScript : LoadedScript {
  HomePageScript() { window.cleanerPage.txtHomePageURL.setText("https://new.example/"); }
  void run() { window.cleanerPage.cmdHomePage.click(); }
};

// Browser and store are told each for itself.
Facts expectedAfterHomePage(Facts facts, const std::vector<Call>& failed) {
  writeValue(facts, failed, kBrowserMain, "Start Page", "https://new.example/");
  save(facts, failed, "HomePage/StartPage", storedFact("HomePage", "StartPage"),
       "https://new.example/");
  return facts;
}

TEST(AHomePageThatCannotBeStored, IsNotReportedAndDoesTheOtherHalf) {
  whicheverCallFails(
      [] { return std::make_unique<HomePageScript>(); },
      [](const HomePageScript& script, const Facts& before) {
        EXPECT_EQ(differences(expectedAfterHomePage(before, script.failed()), script.facts()),
                  Lines{});
      });
}

struct WebAddressScript : LoadedScript {
  void run() { window.cleanerPage.chkWebAddress.click(); }
};

Facts expectedAfterWebAddress(Facts facts, const std::vector<Call>& failed) {
  facts["chkWebAddress.value"] = "1";
  writeValue(facts, failed, kAutoComplete, "AutoSuggest", "no");
  return facts;
}

TEST(AWebAddressBoxWhoseKeyRefuses, KeepsShowingTheClickWithoutABox) {
  whicheverCallFails(
      [] { return std::make_unique<WebAddressScript>(); },
      [](const WebAddressScript& script, const Facts& before) {
        EXPECT_EQ(differences(expectedAfterWebAddress(before, script.failed()), script.facts()),
                  Lines{});
      });
}

struct PopupScript : LoadedScript {
  void run() { window.trayMenu.mnuPoupKiller.click(); }
};

// The item's click and the box's store each for itself.
Facts expectedAfterPopupItem(Facts facts, const std::vector<Call>& failed) {
  facts["chkPopupKillerActivate.value"] = "1";
  facts["mnuPoupKiller.checked"] = "yes";
  const std::string fact = storedFact("PopupKiller", "IsActive");
  std::size_t saves = 0;
  for (const int occurrence : {1, 2}) {
    if (!didFail(failed, "SettingsBackend::save", "PopupKiller/IsActive", occurrence)) {
      facts[numbered("save", saves++)] = fact + " = 1";
      facts[fact] = "1";
    }
  }
  return facts;
}

TEST(APopupSwitchThatCannotBeStored, HoldsWithoutABoxAndIsStoredByTheOtherSave) {
  whicheverCallFails(
      [] { return std::make_unique<PopupScript>(); },
      [](const PopupScript& script, const Facts& before) {
        EXPECT_EQ(differences(expectedAfterPopupItem(before, script.failed()), script.facts()),
                  Lines{});
      });
}

struct SoundScript : LoadedScript {
  SoundScript() { desktop.memory.dialogs.answer("/music/gong.wav"); }
  void run() { window.popupPage.Command1.click(); }
  std::optional<std::string> written() const {
    return desktop.memory.fileSystem.content(desktop.memory.identity.dataFolder() + "/wavpath.txt");
  }
};

TEST(ASoundThatCannotBeStored, IsToldAndTheFileStaysWholeAndTheLabelAsItWas) {
  whicheverCallFails([] { return std::make_unique<SoundScript>(); },
                     [](const SoundScript& script, const Facts&) {
                       const bool good = script.failed().empty();
                       EXPECT_EQ(script.written(), good ? "/music/gong.wav\r\n" : "\r\n");
                       EXPECT_EQ(script.window.popupPage.Label14.caption(),
                                 good ? "/music/gong.wav" : "");
                       EXPECT_EQ(script.desktop.memory.dialogs.boxes().size(), good ? 0U : 1U);
                     });
}

struct WebSiteScript : LoadedScript {
  WebSiteScript() {
    desktop.memory.fileSystem.addFolder("/tmp");
    desktop.memory.specialFolders.setTemporary("/tmp/");
    desktop.memory.programs.use("htm", "/usr/bin/browser");
  }
  void run() { window.mainPage.lblWebSite.click(); }
};

// What is told of a failed call; nothing where it is passed over.
std::string toldOfWebSite(const std::vector<Call>& failed) {
  const std::string name = failed.empty() ? "" : failed.front().name;
  if (name == "SpecialFolders::temporaryPath") return "Can not create file.";
  if (name == "Programs::programFor") return "Could not find associated application";
  return name == "Programs::start" ? "Page not Opened" : "";
}

TEST(AWebSiteThatCannotBeOpened, IsToldAsItsStepSaysAndLeavesNoFileThatCanBeDeleted) {
  whicheverCallFails([] { return std::make_unique<WebSiteScript>(); },
                     [](const WebSiteScript& script, const Facts&) {
                       const platform::MemoryDesktop& desktop = script.desktop.memory;
                       EXPECT_EQ(desktop.dialogs.lastText(), toldOfWebSite(script.failed()));
                       EXPECT_EQ(desktop.fileSystem.has("/tmp/temphtm.htm"),
                                 didFail(script.failed(), "Files::remove", "/tmp/temphtm.htm"));
                     });
}

// One second after a run, and another one.
struct TimerScript : LoadedScript {
  TimerScript() {
    window.cleanerPage.cmdBasicClean.click();
    begin();
  }
  void run() {
    window.schedulePage.tmrMakeScehduleEnable.tick();
    window.schedulePage.tmrMakeScehduleEnable.tick();
  }
};

Facts expectedAfterTick(Facts facts, const std::vector<Call>& failed) {
  save(facts, failed, "Schedule/LastRunTime", storedFact("Schedule", "LastRunTime"), "12:00:00");
  if (!failed.empty()) {
    facts["box 00"] = boxFact("none", "Error: 61 - Disk full");
  }
  facts.erase("tmrSchedule.disabled");
  facts["tmrMakeScehduleEnable.disabled"] = "yes";
  return facts;
}

TEST(ATimeOfARunThatCannotBeStored, IsToldOnceAndTheScheduleIsArmedAllTheSame) {
  whicheverCallFails(
      [] { return std::make_unique<TimerScript>(); },
      [](const TimerScript& script, const Facts& before) {
        EXPECT_EQ(differences(expectedAfterTick(before, script.failed()), script.facts()), Lines{});
      });
}

}  // namespace
}  // namespace zelvane::faults
