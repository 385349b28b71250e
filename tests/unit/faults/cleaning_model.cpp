#include "tests/unit/faults/cleaning_model.h"

#include <utility>

namespace zelvane::faults {

namespace {

using platform::SpecialFolder;

class Model {
 public:
  Model(const Facts& before, const CleaningWorld& world, const std::vector<Call>& failed)
      : facts_(before), world_(world), failed_(failed) {
    std::erase_if(facts_,
                  [](const auto& fact) { return fact.first.starts_with("rtfMessage.run"); });
  }

  Facts run() {
    eraseKey("Erasing 'Auto Complete' Site Addresses", kTypedUrls);
    eraseFolder("Erasing Recent Files", found(SpecialFolder::recent));
    eraseFolder("Erasing My Documents Files", found(SpecialFolder::personal));
    // Names the recent documents and does not touch them.
    log("Erasing Contents of Recycle Bin", found(SpecialFolder::recent, 2));
    set(!did("RecycleBin::empty", ""), "bin", "0 items");
    eraseFolder("Erasing Internet Cashe", found(SpecialFolder::internetCache));
    eraseFolder("Erasing Browser Cookies", found(SpecialFolder::cookies));
    eraseFolder("Erasing Browser Favorites", found(SpecialFolder::favorites));
    eraseFolder("Erasing Internet History", found(SpecialFolder::history));
    eraseFolder("Erasing Windows Temporary Files", foundTemporary());
    set(!did("Clipboard::clear", ""), "clipboard", "");
    eraseKey("Erasing Windows Start Run History", kRunMru);
    force("Disable Script Debugger", 1);
    force("Disable Script DebuggerX", 2);
    write("black\r\nDone");
    facts_["lblLastRunTime.caption"] = "12:00:00";
    facts_["lblStatus.caption"] = "Ready";
    facts_["tabMain.tab"] = "0";
    facts_["tmrSchedule.disabled"] = "yes";
    facts_.erase("tmrMakeScehduleEnable.disabled");
    return std::move(facts_);
  }

 private:
  bool did(const std::string& name, const std::string& subject, int occurrence = 1) const {
    return didFail(failed_, name, subject, occurrence);
  }

  void set(bool done, const std::string& fact, const std::string& value) {
    if (done) {
      facts_[fact] = value;
    }
  }

  void write(const std::string& run) { facts_[numbered("rtfMessage.run", runs_++)] = run; }

  void log(const std::string& caption, const std::string& path) {
    write("blue\r\nPath: " + path);
    write("blue\r\n" + caption + " ...");
    write("green\r\nFinished " + caption);
  }

  std::string found(SpecialFolder folder, int occurrence = 1) const {
    const auto place = world_.folders.find(folder);
    const bool lost =
        did("SpecialFolders::path", std::to_string(static_cast<int>(folder)), occurrence);
    return lost || place == world_.folders.end() ? "" : place->second;
  }

  std::string foundTemporary() const {
    return did("SpecialFolders::temporaryPath", "") ? "" : world_.temporary;
  }

  // The key goes whether or not it could be opened before.
  void eraseKey(const std::string& caption, const std::string& path) {
    log(caption, inUserRoot(path));
    if (!did("Registry::open", inUserRoot(path))) {
      facts_[numbered("opened", opened_++)] = path;
    }
    if (!did("Registry::deleteKey", inUserRoot(path))) {
      facts_.erase("key " + inUserRoot(path));
      for (const auto& [value, text] : beginningWith("value " + inUserRoot(path), facts_)) {
        facts_.erase(value);
      }
    }
  }

  void force(const std::string& name, int opening) {
    const std::string key = inUserRoot(kBrowserMain);
    const std::string value = key + "\\" + name;
    set(!did("Registry::open", key, opening) && !did("Registry::set", value), "value " + value,
        "yes");
  }

  void eraseFolder(const std::string& caption, const std::string& given) {
    log(caption, given);
    if (given.empty() || did("FolderTree::openRoot", given)) {
      return;
    }
    const Facts below = beginningWith("path " + withoutSeparator(given) + "/", facts_);
    for (const auto& [name, kind] : below) {
      if (!survives(name, below)) {
        facts_.erase(name);
      }
    }
  }

  static std::string withoutSeparator(const std::string& path) {
    return path.substr(0, path.find_last_not_of('/') + 1);
  }

  // A folder stays with whatever stays in it.
  bool survives(const std::string& name, const Facts& below) const {
    return std::ranges::any_of(below, [&](const auto& fact) {
      return (fact.first == name || fact.first.starts_with(name + "/")) &&
             keepsItself(fact.first, fact.second);
    });
  }

  bool keepsItself(const std::string& name, const std::string& kind) const {
    const std::string path = name.substr(std::string("path ").size());
    return kind == "hidden file" || kind == "file in use" || did("OpenFolder::removeFile", path) ||
           did("OpenFolder::removeFolder", path) || isInAFolderNobodyGotInto(path);
  }

  bool isInAFolderNobodyGotInto(const std::string& path) const {
    return std::ranges::any_of(failed_, [&](const Call& call) {
      return (call.name == "OpenFolder::openSubfolder" || call.name == "OpenFolder::list") &&
             (path + "/").starts_with(call.subject + "/");
    });
  }

  Facts facts_;
  const CleaningWorld& world_;
  const std::vector<Call>& failed_;
  std::size_t runs_ = 0;
  std::size_t opened_ = 0;
};

}  // namespace

Facts expectedAfterRun(const Facts& before, const CleaningWorld& world,
                       const std::vector<Call>& failed) {
  return Model(before, world, failed).run();
}

}  // namespace zelvane::faults
