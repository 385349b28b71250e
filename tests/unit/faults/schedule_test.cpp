// Applying and cancelling a schedule when a store fails.
#include <array>
#include <memory>

#include "tests/unit/faults/settled_desktop.h"

namespace zelvane::faults {
namespace {

using Lines = std::vector<std::string>;

constexpr auto kKeys = std::to_array({"Date", "Time", "RunAfter", "LastRunTime", "RunOn"});

// Another kind than the stored one, which was not applied yet.
struct EditedScript : LoadedScript {
  EditedScript() {
    window.schedulePage.cmbDays.setListIndex(10);
    begin();
  }
};

struct ApplyScript : EditedScript {
  void run() { window.schedulePage.cmdApply.click(); }
};

// What comes after the text that cannot be stored is not tried.
Facts expectedAfterApply(Facts facts, const std::vector<Call>& failed) {
  const auto textOf = [&](const std::string& key) -> std::string {
    if (key == "RunAfter") {
      return facts["txtHours.text"];
    }
    if (key == "LastRunTime") {
      return facts["lblLastRunTime.caption"];
    }
    return key == "RunOn" ? "10" : "Null";
  };
  for (const char* key : kKeys) {
    if (didFail(failed, "SettingsBackend::save", std::string("Schedule/") + key)) {
      facts["box 00"] = boxFact("none", "Error: 61 - Disk full");
      return facts;
    }
    const std::string fact = storedFact("Schedule", key);
    facts[numbered("save", beginningWith("save ", facts).size())] = fact + " = " + textOf(key);
    facts[fact] = textOf(key);
  }
  facts["cmdApply.disabled"] = "yes";
  facts["cmdCancel.disabled"] = "yes";
  return facts;
}

TEST(AScheduleThatCannotBeStored, IsToldAndStaysEdited) {
  whicheverCallFails([] { return std::make_unique<ApplyScript>(); },
                     [](const ApplyScript& script, const Facts& before) {
                       EXPECT_EQ(
                           differences(expectedAfterApply(before, script.failed()), script.facts()),
                           Lines{});
                     });
}

TEST(AScheduleThatCannotBeStored, IsStoredByTheNextPress) {
  ApplyScript script;
  script.desktop.faults.failCall(3);
  script.run();

  script.run();

  EXPECT_EQ(script.facts()[storedFact("Schedule", "RunOn")], "10");
  EXPECT_FALSE(script.window.schedulePage.cmdApply.enabled());
}

struct CancelScript : EditedScript {
  void run() { window.schedulePage.cmdCancel.click(); }
};

TEST(ACancelledScheduleThatCannotBeRead, TakesWhatIsMissingForNothingAndStoresNothing) {
  whicheverCallFails([] { return std::make_unique<CancelScript>(); },
                     [](const CancelScript& script, const Facts&) {
                       EXPECT_TRUE(script.desktop.memory.settings.saves().empty());
                       EXPECT_TRUE(script.desktop.memory.dialogs.boxes().empty());
                       EXPECT_FALSE(script.window.schedulePage.cmdApply.enabled());
                       EXPECT_FALSE(script.window.schedulePage.cmdCancel.enabled());
                     });
}

}  // namespace
}  // namespace zelvane::faults
