#include "platform/shared/browsers/browser_traces.h"

#include <optional>
#include <utility>

#include "platform/error.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_folder.h"
#include "platform/shared/browsers/database_store.h"
#include "platform/shared/browsers/family_rules.h"
#include "platform/shared/browsers/files_store.h"
#include "platform/shared/browsers/json_store.h"
#include "platform/shared/browsers/leveldb_store.h"

namespace zelvane::platform {
namespace {

// A store of a profile: refuses while the browser is open, and notes what stays behind.
class ProfileStore : public LiveStore {
 public:
  ProfileStore(std::unique_ptr<LiveStore> store, Profile profile, bool isOpen,
               const BrowserDesktop& desktop, LeftTraces& left)
      : store_(std::move(store)),
        profile_(std::move(profile)),
        isOpen_(isOpen),
        desktop_(desktop),
        left_(left) {}

  // What a browser is at work on is not even looked into.
  bool holdsAnything() const override { return isOpen_ || store_->holdsAnything(); }

  void erase() override {
    if (desktop_.isOpen(profile_)) {
      left_.add({profile_.title(), ""});
      throw Error(ErrorNumber::permissionDenied, profile_.title() + " is open");
    }
    try {
      store_->erase();
    } catch (const Error& error) {
      left_.add({profile_.title(), error.text()});
      throw;
    }
  }

 private:
  std::unique_ptr<LiveStore> store_;
  Profile profile_;
  bool isOpen_;  // when it was found
  const BrowserDesktop& desktop_;
  LeftTraces& left_;
};

std::optional<Trace> traceOf(SpecialFolder folder) {
  switch (folder) {
    case SpecialFolder::history:
      return Trace::history;
    case SpecialFolder::internetCache:
      return Trace::cache;
    case SpecialFolder::cookies:
      return Trace::cookies;
    case SpecialFolder::favorites:
      return Trace::favorites;
    default:
      return std::nullopt;
  }
}

const std::string& startOf(const Profile& profile, In in) {
  return in == In::profile ? profile.folder : in == In::cache ? profile.cache : profile.root;
}

}  // namespace

// Calls `use` with the name and the store of each rule of that trace.
template <typename Use>
void BrowserTraces::forEachStore(const Profile& profile, Trace trace, const Use& use) const {
  const FamilyRules& rules = rulesOf(profile.family);
  const bool isOpen = desktop_.isOpen(profile);
  const auto offer = [&](std::string_view name, std::unique_ptr<LiveStore> store) {
    use(std::string(name),
        std::make_unique<ProfileStore>(std::move(store), profile, isOpen, desktop_, left_));
  };
  for (const DatabaseRule& rule : rules.databases) {
    if (rule.trace == trace) {
      offer(rule.name, std::make_unique<DatabaseStore>(
                           profile.folder, rule, desktop_, files_,
                           [&left = left_, title = profile.title()](const std::string& what) {
                             left.add({title, what});
                           }));
    }
  }
  for (const FilesRule& rule : rules.files) {
    if (rule.trace == trace) {
      offer(rule.name,
            std::make_unique<FilesStore>(startOf(profile, rule.in), rule, desktop_, tree_));
    }
  }
  for (const LevelDbRule& rule : rules.levelDbs) {
    if (rule.trace == trace) {
      offer(rule.name, std::make_unique<LevelDbStore>(profile.folder, rule, desktop_, tree_));
    }
  }
  for (const JsonRule& rule : rules.json) {
    if (rule.trace == trace) {
      offer(rule.name, std::make_unique<JsonStore>(profile.folder, rule, desktop_, files_));
    }
  }
}

void BrowserTraces::find(SpecialFolder folder, LiveFinding& finding) const {
  const std::optional<Trace> trace = traceOf(folder);
  if (!trace) return;
  for (const Profile& profile : profilesThere(desktop_, files_)) {
    finding.places.push_back(profile.folder);
    LiveFolder& shown = finding.folder.addSubfolder(profile.title());
    forEachStore(profile, *trace, [&](const std::string& name, std::unique_ptr<LiveStore> store) {
      shown.addStore(name, std::move(store));
    });
    if (!desktop_.isOpen(profile)) addFolders(profile, *trace, shown);
  }
}

void BrowserTraces::addFolders(const Profile& profile, Trace trace, LiveFolder& shown) const {
  for (const FolderRule& rule : rulesOf(profile.family).folders) {
    if (rule.trace != trace) continue;
    const std::optional<std::string> path =
        desktop_.ownFolder(startOf(profile, rule.in) + "/" + std::string(rule.path));
    if (!path) continue;
    shown.addFolder(std::string(rule.path), [this, &rule, path = *path](FolderTree&) {
      return openBrowserFolder(tree_, path, rule.entries, sparedIn(rule, path));
    });
  }
}

std::vector<std::string> BrowserTraces::sparedIn(const FolderRule& rule,
                                                 const std::string& path) const {
  return rule.spared == nullptr ? std::vector<std::string>() : rule.spared(path, desktop_, files_);
}

void BrowserTraces::eraseTyped() const {
  for (const Profile& profile : profilesThere(desktop_, files_)) {
    forEachStore(profile, Trace::typed, [](const std::string&, std::unique_ptr<LiveStore> store) {
      try {
        if (store->holdsAnything()) store->erase();
      } catch (const Error&) {
        // It is noted, and the next profile has its turn.
      }
    });
  }
}

const FamilyRules& rulesOf(Family family) {
  return family == Family::firefox ? firefoxRules() : chromiumRules();
}

}  // namespace zelvane::platform
