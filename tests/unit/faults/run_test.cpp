// A cleaning run in which one call, or two, of the desktop fail.
#include <chrono>
#include <memory>
#include <utility>

#include "core/main_window/startup.h"
#include "tests/unit/faults/cleaning_model.h"

namespace zelvane::faults {
namespace {

using namespace std::chrono_literals;

using Lines = std::vector<std::string>;

// Every option ticked on a desktop where each finds work.
class RunScript : public Script {
 public:
  explicit RunScript(CleaningWorld furnished) : world(std::move(furnished)) {
    furnish(desktop.memory, world);
    desktop.memory.clock.set({std::chrono::year{2026} / 11 / 21, 12h});
    main_window::GenFunc::Main(desktop.ports(), window);
    for (controls::CheckBox& box : window.cleanerPage.chkSettings) {
      box.setValue(controls::CheckBox::kChecked);
    }
    window.cleanerPage.rtfMessage.append("what an earlier run left");
    window.mainPage.tabMain.setTab(2);
    begin();
  }

  void run() { window.cleanerPage.cmdBasicClean.click(); }

  Facts expected(const Facts& before) const { return expectedAfterRun(before, world, failed()); }

  CleaningWorld world;
};

std::unique_ptr<RunScript> inTheWholeWorld() { return std::make_unique<RunScript>(wholeWorld()); }
std::unique_ptr<RunScript> inTheSmallWorld() { return std::make_unique<RunScript>(smallWorld()); }

// The paths outside every folder that is erased, these folders themselves among them.
Facts beside(const CleaningWorld& world, const Facts& facts) {
  Facts paths = beginningWith("path ", facts);
  for (const std::string& root : world.roots()) {
    std::erase_if(paths, [start = "path " + root + "/"](const auto& fact) {
      return fact.first.starts_with(start);
    });
  }
  return paths;
}

TEST(ARunWithAFault, DoesEverythingThatDoesNotDependOnTheCallThatFailed) {
  whicheverCallFails(inTheWholeWorld, [](const RunScript& script, const Facts& before) {
    EXPECT_EQ(differences(script.expected(before), script.facts()), Lines{});
  });
}

TEST(ARunWithAFault, EndsInFullWithoutABox) {
  whicheverCallFails(inTheSmallWorld, [](const RunScript& script, const Facts&) {
    EXPECT_TRUE(script.desktop.memory.dialogs.boxes().empty());
    EXPECT_EQ(script.window.cleanerPage.rtfMessage.runs().size(), 31U);
    EXPECT_TRUE(script.window.cleanerPage.rtfMessage.text().ends_with("\r\nDone"));
    EXPECT_EQ(script.window.mainPage.lblStatus.caption(), "Ready");
    EXPECT_FALSE(script.window.schedulePage.tmrSchedule.enabled());
    EXPECT_TRUE(script.window.schedulePage.tmrMakeScehduleEnable.enabled());
  });
}

TEST(ARunWithAFault, TouchesNoSettingAndNothingBesideItsFolders) {
  whicheverCallFails(inTheSmallWorld, [](const RunScript& script, const Facts& before) {
    EXPECT_TRUE(script.desktop.memory.settings.saves().empty());
    EXPECT_EQ(beside(script.world, factsOf(script.desktop.memory)), beside(script.world, before));
  });
}

TEST(ARunWithAFault, IsMadeUpForByTheNextRun) {
  auto good = inTheSmallWorld();
  good->run();
  const Facts cleaned = beginningWith("path ", good->facts());

  whicheverCallFails(inTheSmallWorld, [&cleaned](RunScript& script, const Facts&) {
    script.desktop.faults.startOver();
    script.run();

    EXPECT_EQ(differences(cleaned, beginningWith("path ", script.facts())), Lines{});
    EXPECT_TRUE(script.desktop.memory.recycleBin.items().empty());
    EXPECT_EQ(script.desktop.memory.clipboard.content, "");
  });
}

TEST(ARunWithTwoFaults, DoesEverythingThatDependsOnNeither) {
  whicheverTwoCallsFail(inTheSmallWorld, [](const RunScript& script, const Facts& before) {
    EXPECT_EQ(differences(script.expected(before), script.facts()), Lines{});
  });
}

}  // namespace
}  // namespace zelvane::faults
