// A start in which a call of the desktop fails, and a load that ends early.
#include <functional>
#include <memory>

#include "platform/error.h"
#include "tests/unit/faults/load_model.h"
#include "tests/unit/faults/settled_desktop.h"

namespace zelvane::faults {
namespace {

using main_window::frmMain;

using Lines = std::vector<std::string>;

struct StartScript : Script {
  void run() { main_window::GenFunc::Main(desktop.ports(), window); }
};

std::unique_ptr<StartScript> onANewDesktop() { return std::make_unique<StartScript>(); }

std::unique_ptr<StartScript> onASettledDesktop() {
  auto script = std::make_unique<StartScript>();
  settle(script->desktop.memory);
  return script;
}

void expectWhatDependsOnNoFault(const StartScript& script, const Facts& before) {
  EXPECT_EQ(differences(expectedAfterLoad(before, script.failed()), script.facts()), Lines{});
}

void expectSavedClicks(StartScript& script, const Facts&) {
  const bool loaded = !endsTheLoad(script.failed());
  script.desktop.faults.startOver();
  script.desktop.memory.settings.forgetSaves();

  script.window.cleanerPage.chkSettings[12].click();

  EXPECT_EQ(script.desktop.memory.settings.savedKeys(), loaded ? Lines{"Index12"} : Lines{});
}

// Where these could not be read, they were set for good.
Facts withoutWhatSetsItself(Facts facts) {
  for (const char* fact :
       {"chkWebAddress.value", "chkPopupKillerActivate.value", "mnuPoupKiller.checked"}) {
    facts.erase(fact);
  }
  return facts;
}

Facts storedIn(const StartScript& script) {
  Facts stored = beginningWith("stored ", script.facts());
  stored.erase(storedFact("PopupKiller", "IsActive"));
  return stored;
}

TEST(AStartWithAFault, TakesWhatCannotBeReadForNothingAndLoadsTheRest) {
  whicheverCallFails(onANewDesktop, expectWhatDependsOnNoFault);
  whicheverCallFails(onASettledDesktop, expectWhatDependsOnNoFault);
}

TEST(AStartWithTwoFaults, LoadsWhatDependsOnNeither) {
  whicheverTwoCallsFail(onASettledDesktop, expectWhatDependsOnNoFault);
}

// But the popup killer's: where it cannot be read it is on, and being turned on stores that.
TEST(AStartWithAFault, LeavesEveryStoredSettingAsItWas) {
  const Facts before = storedIn(*onASettledDesktop());

  whicheverCallFails(onASettledDesktop, [&before](const StartScript& script, const Facts&) {
    EXPECT_EQ(storedIn(script), before);
  });
}

TEST(AStartWithAFault, SavesTheOptionsThatAreClickedAfterItUnlessTheLoadHadEnded) {
  whicheverCallFails(onANewDesktop, expectSavedClicks);
  whicheverCallFails(onASettledDesktop, expectSavedClicks);
}

TEST(AStartWithAFault, IsMadeUpForByTheNextStart) {
  auto good = onASettledDesktop();
  good->run();
  const Facts loaded = withoutWhatSetsItself(factsOf(good->window));

  whicheverCallFails(onASettledDesktop, [&loaded](StartScript& script, const Facts&) {
    script.desktop.faults.startOver();
    frmMain next(script.desktop.ports());
    main_window::GenFunc::Main(script.desktop.ports(), next);

    EXPECT_EQ(differences(loaded, withoutWhatSetsItself(factsOf(next))), Lines{});
  });
}

// A load whose step fails where no port is to blame: memory runs out while a control changes.
class ALoadThatEndsEarly : public testing::Test {
 protected:
  void failWhen(controls::Event<>& event) {
    event.connect([] { throw platform::Error(platform::ErrorNumber::outOfMemory); });
  }

  bool savesAClick() {
    window.cleanerPage.chkSettings[12].click();
    return !script->desktop.memory.settings.saves().empty();
  }

  std::unique_ptr<StartScript> script = onASettledDesktop();
  frmMain& window = script->window;
  const Facts before = script->facts();
};

TEST_F(ALoadThatEndsEarly, IsToldInOneBoxAndItsLaterStepsAreSkipped) {
  failWhen(window.mainPage.lblWebSite.changed);

  script->run();

  Facts expected = before;
  expected["box 00"] = boxFact("none", "Error: 7 - Out of memory");
  expected["frmMain.caption"] = "Zelvane v1.0";
  expected["mnuShow.caption"] = "Zelvane v1.0";
  expected["lblWebSite.caption"] = "https://www.zelvane.example/";
  expected.erase("frmMain.hidden");
  EXPECT_EQ(differences(expected, script->facts()), Lines{});
}

TEST_F(ALoadThatEndsEarly, BeforeItsOptionsAreLoadedLeavesClicksUnsaved) {
  failWhen(window.mainPage.lblWebSite.changed);

  script->run();

  EXPECT_FALSE(savesAClick());
}

TEST_F(ALoadThatEndsEarly, AmongTheDefaultsOfItsOptionsLeavesClicksUnsaved) {
  failWhen(window.cleanerPage.chkSettings[5].clicked);

  script->run();

  EXPECT_EQ(script->desktop.memory.dialogs.boxes().size(), 1U);
  EXPECT_FALSE(savesAClick());
}

TEST_F(ALoadThatEndsEarly, AtTheHomePageLeavesClicksUnsavedAndTheLaterControlsAsDesigned) {
  failWhen(window.cleanerPage.txtHomePageURL.edited);

  script->run();

  EXPECT_EQ(script->desktop.memory.dialogs.boxes().size(), 1U);
  EXPECT_EQ(window.mainPage.chkStartup.value(), 0);
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "");
  EXPECT_FALSE(savesAClick());
}

TEST_F(ALoadThatEndsEarly, AfterTheHomePageSavesClicks) {
  failWhen(window.mainPage.chkStartup.clicked);

  script->run();

  EXPECT_EQ(script->desktop.memory.dialogs.boxes().size(), 1U);
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "");
  EXPECT_TRUE(savesAClick());
}

TEST_F(ALoadThatEndsEarly, IsNoneWhereAStoredOptionFailsToBeShown) {
  failWhen(window.cleanerPage.chkSettings[12].clicked);

  script->run();

  EXPECT_TRUE(script->desktop.memory.dialogs.boxes().empty());
  EXPECT_TRUE(window.cleanerPage.chkSettings[13].checked());
  EXPECT_EQ(window.mainPage.lblStatus.caption(), "Ready");
}

TEST_F(ALoadThatEndsEarly, LosesNoSetting) {
  for (controls::Event<>* event :
       {&window.mainPage.lblWebSite.changed, &window.cleanerPage.chkSettings[5].clicked,
        &window.cleanerPage.txtHomePageURL.edited, &window.mainPage.chkStartup.clicked}) {
    failWhen(*event);
  }

  script->run();

  EXPECT_EQ(beginningWith("stored ", script->facts()), beginningWith("stored ", before));
  EXPECT_TRUE(script->desktop.memory.settings.saves().empty());
}

}  // namespace
}  // namespace zelvane::faults
