#include "tests/unit/faults/load_model.h"

#include <array>
#include <utility>

namespace zelvane::faults {

namespace {

constexpr auto kSoundFile = "/home/user/.local/share/zelvane/wavpath.txt";
constexpr auto kDefaults = std::to_array({1, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 0, 0, 0});

// The number of the day that the clock shows; a stored time of day is of that day.
const std::string kToday = "20778";

class Model {
 public:
  Model(const Facts& before, const std::vector<Call>& failed) : facts_(before), failed_(failed) {}

  Facts load() {
    complain("SettingsBackend::check", "The settings cannot be read.");
    complain("Registry::check", "The registry cannot be read.");
    writeMissingProfileEntry();
    facts_.erase("frmMain.hidden");
    if (endsTheLoad(failed_)) {
      tell("none", did("Files::open", kSoundFile) ? "Error: 53 - File not found"
                                                  : "Error: 57 - Device I/O error");
      return std::move(facts_);
    }
    showIdentity();
    loadPopupSwitch();
    for (std::size_t index = 0; index < kDefaults.size(); ++index) {
      const std::string option = std::to_string(index);
      facts_["chkSettings_" + option + ".value"] = stored(
          storedOptionFact(index), "Settings/Index" + option, std::to_string(kDefaults[index]));
    }
    loadWebAddress();
    const std::string homePage =
        stored(storedFact("HomePage", "StartPage"), "HomePage/StartPage", "about:blank");
    facts_["txtHomePageURL.text"] = homePage;
    write(kBrowserMain, "Start Page", homePage, 1);
    facts_["chkStartup.value"] = stored(storedFact("Options", "StartUp"), "Options/StartUp", "0");
    loadSchedule();
    facts_["cmdApply.disabled"] = "yes";
    facts_["cmdCancel.disabled"] = "yes";
    facts_["lblStatus.caption"] = "Ready";
    return std::move(facts_);
  }

 private:
  bool did(const std::string& name, const std::string& subject, int occurrence = 1) const {
    return didFail(failed_, name, subject, occurrence);
  }

  void tell(const std::string& icon, const std::string& text) {
    facts_[numbered("box", beginningWith("box ", facts_).size())] = boxFact(icon, text);
  }

  void complain(const std::string& check, const std::string& text) {
    if (did(check, "")) {
      tell("exclamation", text);
    }
  }

  void writeMissingProfileEntry() {
    const bool missing =
        facts_["win.ini DVK"] == "(none)" || did("ProfileFile::find", "Extensions/DVK");
    if (missing && !did("ProfileFile::write", "Extensions/DVK")) {
      facts_["win.ini DVK"] = "/opt/zelvaneZelvane.exe ^.DVK";
    }
  }

  void showIdentity() {
    facts_["frmMain.caption"] = "Zelvane v1.0";
    facts_["mnuShow.caption"] = "Zelvane v1.0";
    facts_["lblWebSite.caption"] = "https://www.zelvane.example/";
    facts_["Label9.caption"] = "https://www.zelvane.example/";
    facts_["lblUser.caption"] = "User reading-room";
    facts_["lblOS.caption"] = "Penguin Desktop 7";
    facts_["Label13.caption"] = "192.0.2.17";
  }

  // On unless "0" is read, and turning it on is a click, which stores what it could not read.
  void loadPopupSwitch() {
    const std::string fact = storedFact("PopupKiller", "IsActive");
    const bool active = stored(fact, "PopupKiller/IsActive", "1") != "0";
    facts_["chkPopupKillerActivate.value"] = active ? "1" : "0";
    facts_["mnuPoupKiller.checked"] = active ? "yes" : "no";
    facts_["Label14.caption"] = "";
    if (active && !did("SettingsBackend::save", "PopupKiller/IsActive")) {
      facts_[fact] = "1";
      facts_[numbered("save", 0)] = fact + " = 1";
    }
  }

  // Ticked unless "yes" is read, and the tick is a click, which forbids what it could not read.
  void loadWebAddress() {
    const std::string key = inUserRoot(kAutoComplete);
    const std::string value = key + "\\AutoSuggest";
    const bool read = !did("Registry::open", key, 1) && !did("Registry::query", value);
    const bool suggests =
        read && facts_.contains("value " + value) && facts_["value " + value] == "yes";
    facts_["chkWebAddress.value"] = suggests ? "0" : "1";
    if (!suggests) {
      write(kAutoComplete, "AutoSuggest", "no", 2);
    }
  }

  // The kind is asked for twice: whether there is one, and at last which.
  void loadSchedule() {
    const auto schedule = [this](const std::string& key, const std::string& absent,
                                 int occurrence) {
      return stored(storedFact("Schedule", key), "Schedule/" + key, absent, occurrence);
    };
    const bool applied = schedule("RunOn", "None", 1) != "None";
    if (applied) {
      facts_["txtHours.text"] = schedule("RunAfter", "", 1);
      facts_["lblLastRunTime.caption"] = schedule("LastRunTime", "", 1);
    }
    const bool hasDate = applied && schedule("Date", "Null", 1) != "Null";
    const bool hasTime = applied && schedule("Time", "Null", 1) != "Null";
    const bool isDaily = !applied || schedule("RunOn", "7", 2) == "7";
    facts_["cmbDays.listIndex"] = isDaily ? "7" : "9";
    facts_["dtpScheduleDate.value"] = hasDate && !isDaily ? "2 12:00:00" : "none";
    facts_["dtpScheduleTime.value"] = hasTime ? kToday + " 08:30:00" : "none";
    if (isDaily) {
      facts_["dtpScheduleDate.disabled"] = "yes";
    }
    if (isDaily && !hasTime) {
      if (facts_["txtHours.text"].empty()) {
        facts_["txtHours.text"] = "2";
      }
    } else {
      facts_["txtHours.disabled"] = "yes";
      facts_["txtHours.background"] = "button face";
      facts_["udnHours.disabled"] = "yes";
    }
  }

  void write(const std::string& path, const std::string& name, const std::string& text,
             int opening) {
    const std::string key = inUserRoot(path);
    const std::string value = key + "\\" + name;
    if (!did("Registry::open", key, opening) && !did("Registry::set", value)) {
      facts_["value " + value] = text;
    }
  }

  std::string stored(const std::string& fact, const std::string& subject, const std::string& absent,
                     int occurrence = 1) const {
    const auto text = facts_.find(fact);
    return text == facts_.end() || did("SettingsBackend::find", subject, occurrence) ? absent
                                                                                     : text->second;
  }

  Facts facts_;
  const std::vector<Call>& failed_;
};

}  // namespace

bool endsTheLoad(const std::vector<Call>& failed) {
  return didFail(failed, "Files::open", kSoundFile) ||
         didFail(failed, "ReadStream::read", kSoundFile);
}

Facts expectedAfterLoad(const Facts& before, const std::vector<Call>& failed) {
  return Model(before, failed).load();
}

}  // namespace zelvane::faults
