#include "platform/shared/browsers/browser_folder.h"

#include <algorithm>
#include <array>

#include "platform/error.h"
#include "platform/shared/ascii_case.h"
#include "platform/shared/browsers/path_pattern.h"

namespace zelvane::platform {
namespace {

constexpr auto kNeverErased = std::to_array<std::string_view>({"Bookmarks",
                                                               "AccountBookmarks",
                                                               "Preferences",
                                                               "Secure Preferences",
                                                               "Local State",
                                                               "Login Data",
                                                               "Login Data For Account",
                                                               "Web Data",
                                                               "Extension Cookies",
                                                               "places.sqlite",
                                                               "key4.db",
                                                               "key3.db",
                                                               "logins.json",
                                                               "logins.db",
                                                               "cert9.db",
                                                               "prefs.js",
                                                               "user.js",
                                                               "extensions.json",
                                                               "profiles.ini",
                                                               "installs.ini"});

class BrowserFolder : public OpenFolder {
 public:
  BrowserFolder(std::unique_ptr<OpenFolder> folder, std::vector<std::string_view> patterns,
                std::vector<std::string> spared)
      : folder_(std::move(folder)), patterns_(std::move(patterns)), spared_(std::move(spared)) {}

  FolderListing list(EventPump& pump) override {
    FolderListing all = folder_->list(pump);
    if (holdsGuarded(all.files) || holdsGuarded(all.subfolders)) {
      throw Error(ErrorNumber::accessError);
    }
    if (patterns_.empty() && spared_.empty()) return all;
    FolderListing shown;
    const auto copyShown = [this](const NameList& from, NameList& to) {
      for (const std::string_view name : from) {
        if (isShown(name)) to.add(name);
      }
    };
    copyShown(all.files, shown.files);
    copyShown(all.subfolders, shown.subfolders);
    return shown;
  }

  std::unique_ptr<OpenFolder> openSubfolder(const std::string& name) override {
    refuseUnlessShown(name);
    return std::make_unique<BrowserFolder>(
        folder_->openSubfolder(name), std::vector<std::string_view>(), std::vector<std::string>());
  }

  void removeFile(const std::string& name) override {
    refuseUnlessShown(name);
    folder_->removeFile(name);
  }

  void removeFolder(const std::string& name) override {
    refuseUnlessShown(name);
    folder_->removeFolder(name);
  }

 private:
  static bool holdsGuarded(const NameList& names) {
    return std::any_of(names.begin(), names.end(),
                       [](std::string_view name) { return isNeverErased(name); });
  }

  bool isShown(std::string_view name) const {
    if (std::ranges::count(spared_, name) > 0) return false;
    return patterns_.empty() || std::ranges::any_of(patterns_, [&](std::string_view pattern) {
             return partFor(pattern, name).has_value();
           });
  }

  void refuseUnlessShown(const std::string& name) const {
    if (!isShown(name) || isNeverErased(name)) throw Error(ErrorNumber::accessError);
  }

  std::unique_ptr<OpenFolder> folder_;
  std::vector<std::string_view> patterns_;
  std::vector<std::string> spared_;
};

}  // namespace

std::unique_ptr<OpenFolder> openBrowserFolder(FolderTree& tree, const std::string& path,
                                              std::vector<std::string_view> patterns,
                                              std::vector<std::string> spared) {
  return std::make_unique<BrowserFolder>(tree.openRoot(path), std::move(patterns),
                                         std::move(spared));
}

bool isNeverErased(std::string_view name) {
  return std::ranges::any_of(kNeverErased,
                             [&](std::string_view kept) { return sameName(kept, name); });
}

}  // namespace zelvane::platform
