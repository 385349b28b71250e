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
  script.desktop.faults.startOver();

  script.window.cleanerPage.chkSettings[12].click();

  EXPECT_EQ(script.desktop.memory.settings.savedKeys(), Lines{"Index12"});
}

TEST(AStartWithAFault, TakesWhatCannotBeReadForNothingAndLoadsTheRest) {
  whicheverCallFails(onANewDesktop, expectWhatDependsOnNoFault);
  whicheverCallFails(onASettledDesktop, expectWhatDependsOnNoFault);
}

TEST(AStartWithTwoFaults, LoadsWhatDependsOnNeither) {
  whicheverTwoCallsFail(onASettledDesktop, expectWhatDependsOnNoFault);
}

TEST(AStartWithAFault, LeavesEveryStoredSettingAsItWasAndSavesNone) {
  whicheverCallFails(onASettledDesktop, [](const StartScript& script, const Facts& before) {
    const Facts after = factsOf(script.desktop.memory);

    EXPECT_EQ(beginningWith("stored ", after), beginningWith("stored ", before));
    EXPECT_EQ(beginningWith("save ", after), Facts{});
  });
}

TEST(AStartWithAFault, SavesTheOptionsThatAreClickedAfterIt) {
  whicheverCallFails(onANewDesktop, expectSavedClicks);
  whicheverCallFails(onASettledDesktop, expectSavedClicks);
}

TEST(AStartWithAFault, IsMadeUpForByTheNextStart) {
  auto good = onASettledDesktop();
  good->run();
  Facts loaded = factsOf(good->window);
  // Where it could not be read, the browser was told no for good.
  loaded.erase("chkWebAddress.value");

  whicheverCallFails(onASettledDesktop, [&loaded](StartScript& script, const Facts&) {
    script.desktop.faults.startOver();
    frmMain next(script.desktop.ports());
    main_window::GenFunc::Main(script.desktop.ports(), next);

    Facts found = factsOf(next);
    found.erase("chkWebAddress.value");
    EXPECT_EQ(differences(loaded, found), Lines{});
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
