#include "platform/shared/browsers/profile_settings.h"

#include <utility>

#include "platform/error.h"
#include "platform/shared/browsers/json_file.h"
#include "platform/shared/browsers/preference_text.h"

namespace zelvane::platform {
namespace {

using nlohmann::json;

constexpr std::uint64_t kLongestPreferences = std::uint64_t{16} << 20U;  // bytes

// Firefox writes prefs.js itself, and only at its end; user.js is its user's, is read at each start
// and wins. So the first is written, and the second only where it speaks of the same preference.
class FirefoxSettings : public ProfileSettings {
 public:
  FirefoxSettings(File own, std::optional<File> users)
      : ownPath_(std::move(own.path)), own_(std::move(own.content)) {
    if (own_.isDamaged()) throw Error(ErrorNumber::typeMismatch, ownPath_ + " is damaged");
    if (users) {
      usersPath_ = std::move(users->path);
      users_.emplace(std::move(users->content));
    }
  }

  std::optional<json> find(const std::string& name) const override {
    auto users = users_ ? users_->find(name) : std::nullopt;
    return users ? users : own_.find(name);
  }

  bool isGuarded(const std::string&) const override { return false; }

  void set(const std::string& name, const json& value) override {
    own_.set(name, value);
    isOwnChanged_ = true;
    if (users_ && users_->find(name)) {
      users_->set(name, value);
      isUsersChanged_ = true;
    }
  }

  std::vector<File> changed() const override {
    std::vector<File> files;
    if (isUsersChanged_) files.push_back({usersPath_, users_->text()});
    if (isOwnChanged_) files.push_back({ownPath_, own_.text()});
    return files;
  }

 private:
  std::string ownPath_;
  PreferenceText own_;
  std::string usersPath_;
  std::optional<PreferenceText> users_;
  bool isOwnChanged_ = false;
  bool isUsersChanged_ = false;
};

json::json_pointer pointerTo(const std::string& name) { return json::json_pointer("/" + name); }

// Where Chromium guards a setting, it keeps it in "Secure Preferences", and a code beside it that
// only the browser can make: a value with the wrong code is taken for a burglar's.
class ChromiumSettings : public ProfileSettings {
 public:
  ChromiumSettings(std::string path, json settings, std::optional<json> guarded)
      : path_(std::move(path)), settings_(std::move(settings)), guarded_(std::move(guarded)) {
    if (!settings_.is_object()) throw Error(ErrorNumber::typeMismatch, path_ + " is damaged");
  }

  std::optional<json> find(const std::string& name) const override {
    const auto pointer = pointerTo(name);
    return settings_.contains(pointer) ? std::optional(settings_.at(pointer)) : std::nullopt;
  }

  bool isGuarded(const std::string& name) const override {
    return guarded_ && (guarded_->contains(pointerTo(name)) ||
                        guarded_->contains(pointerTo("protection/macs/" + name)));
  }

  void set(const std::string& name, const json& value) override {
    json* place = &settings_;
    for (std::size_t begin = 0; begin <= name.size();) {
      const std::size_t end = std::min(name.find('/', begin), name.size());
      if (!place->is_object() && !place->is_null()) {
        throw Error(ErrorNumber::typeMismatch, path_ + " is damaged");
      }
      place = &(*place)[name.substr(begin, end - begin)];
      begin = end + 1;
    }
    *place = value;
    isChanged_ = true;
  }

  std::vector<File> changed() const override {
    if (!isChanged_) return {};
    try {
      return {{path_, settings_.dump()}};
    } catch (const json::type_error&) {
      throw Error(ErrorNumber::typeMismatch, "The text is no UTF-8.");
    }
  }

 private:
  std::string path_;
  json settings_;
  std::optional<json> guarded_;
  bool isChanged_ = false;
};

}  // namespace

std::unique_ptr<ProfileSettings> settingsOf(const Profile& profile, const BrowserDesktop& desktop,
                                            const Files& files) {
  if (profile.family == Family::firefox) {
    const auto fileAt = [&](const std::string& path) {
      return ProfileSettings::File{path, files.readWhole(path, kLongestPreferences)};
    };
    const std::string own = profile.folder + "/prefs.js";
    const std::string users = profile.folder + "/user.js";
    const PathKind kind = desktop.kindOf(own);
    if (kind == PathKind::nothing) return nullptr;
    if (kind != PathKind::file) throw Error(ErrorNumber::accessError, own);
    // Some keep user.js elsewhere, behind a link: then it is not this profile's to change.
    const bool hasUsers = desktop.kindOf(users) == PathKind::file;
    return std::make_unique<FirefoxSettings>(
        fileAt(own), hasUsers ? std::optional(fileAt(users)) : std::nullopt);
  }
  const std::string path = profile.folder + "/Preferences";
  auto settings = readJson(path, desktop, files);
  if (!settings) return nullptr;
  return std::make_unique<ChromiumSettings>(
      path, std::move(*settings), readJson(profile.folder + "/Secure Preferences", desktop, files));
}

}  // namespace zelvane::platform
