#include "tests/unit/faults/load_model.h"

#include <array>
#include <utility>

namespace zelvane::faults {

namespace {

constexpr auto kDefaults = std::to_array({1, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 0, 0, 0});

class Model {
 public:
  Model(const Facts& before, const std::vector<Call>& failed) : facts_(before), failed_(failed) {}

  Facts load() {
    complain("SettingsBackend::check", "The settings cannot be read.");
    complain("Registry::check", "The registry cannot be read.");
    writeMissingProfileEntry();
    showIdentity();
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
    facts_["cmdApply.disabled"] = "yes";
    facts_["cmdCancel.disabled"] = "yes";
    facts_["lblStatus.caption"] = "Ready";
    facts_.erase("frmMain.hidden");
    return std::move(facts_);
  }

 private:
  bool did(const std::string& name, const std::string& subject, int occurrence = 1) const {
    return didFail(failed_, name, subject, occurrence);
  }

  void complain(const std::string& check, const std::string& text) {
    if (did(check, "")) {
      facts_[numbered("box", beginningWith("box ", facts_).size())] = boxFact("exclamation", text);
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

  void write(const std::string& path, const std::string& name, const std::string& text,
             int opening) {
    const std::string key = inUserRoot(path);
    const std::string value = key + "\\" + name;
    if (!did("Registry::open", key, opening) && !did("Registry::set", value)) {
      facts_["value " + value] = text;
    }
  }

  std::string stored(const std::string& fact, const std::string& subject,
                     const std::string& absent) const {
    const auto text = facts_.find(fact);
    return text == facts_.end() || did("SettingsBackend::find", subject) ? absent : text->second;
  }

  Facts facts_;
  const std::vector<Call>& failed_;
};

}  // namespace

Facts expectedAfterLoad(const Facts& before, const std::vector<Call>& failed) {
  return Model(before, failed).load();
}

}  // namespace zelvane::faults
