#include "platform/shared/browsers/browser_settings.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/shared/browsers/profile_settings.h"
#include "platform/shared/browsers/setting_rows.h"

namespace zelvane::platform {
namespace {

bool isSo(const ProfileSettings& present, const Setting& wanted) {
  const auto value = present.find(wanted.name);
  return value ? *value == wanted.value : wanted.unset == wanted.value;
}

bool allAreSo(const ProfileSettings& present, const std::vector<Setting>& wanted) {
  return std::ranges::all_of(wanted, [&](const Setting& one) { return isSo(present, one); });
}

bool anyIsGuarded(const ProfileSettings& present, const std::vector<Setting>& wanted) {
  return std::ranges::any_of(wanted,
                             [&](const Setting& one) { return present.isGuarded(one.name); });
}

void ignoringErrors(const auto& action) {
  try {
    action();
  } catch (const Error&) {
    // It stays as it is, and the next one has its turn.
  }
}

}  // namespace

void BrowserSettings::imposeStartPage(const std::string& address) const {
  std::vector<std::string> noted;
  ignoringErrors([&] {
    for (const Profile& profile : profilesThere(desktop_, files_)) {
      ignoringErrors([&] {
        if (impose(profile, startPageSettings(profile.family, address), true)) {
          noted.push_back(profile.title());
        }
      });
    }
  });
  if (!noted.empty()) ignoringErrors([&] { tell(noted); });
}

void BrowserSettings::suggestAddresses(bool suggests) const {
  ignoringErrors([&] {
    for (const Profile& profile : profilesThere(desktop_, files_)) {
      ignoringErrors([&] { impose(profile, suggestionSettings(profile.family, suggests), false); });
    }
  });
}

std::optional<bool> BrowserSettings::suggestsAddresses() const {
  std::optional<bool> answer;
  ignoringErrors([&] {
    for (const Profile& profile : profilesThere(desktop_, files_)) {
      ignoringErrors([&] {
        const std::vector<Setting> quiet = suggestionSettings(profile.family, false);
        const auto present = settingsOf(profile, desktop_, files_);
        if (present && !anyIsGuarded(*present, quiet)) {
          answer = answer.value_or(false) || !allAreSo(*present, quiet);
        }
      });
    }
  });
  return answer;
}

bool BrowserSettings::wants(const Profile& profile, const std::vector<Setting>& settings) const {
  const auto present = settingsOf(profile, desktop_, files_);
  return present && !allAreSo(*present, settings) && !anyIsGuarded(*present, settings);
}

// True if what the profile had before was noted just now.
bool BrowserSettings::impose(const Profile& profile, const std::vector<Setting>& settings,
                             bool isNoted) const {
  // Whether a browser is open takes time to find out, and mostly nothing is to be done.
  if (!wants(profile, settings) || desktop_.isOpen(profile)) return false;
  // Read once more: it may have been closed just now, and have written at its end.
  const auto present = settingsOf(profile, desktop_, files_);
  if (!present) return false;
  FormerPages::Settings former;
  for (const Setting& setting : settings) {
    former.emplace(setting.name, present->find(setting.name));
    if (!isSo(*present, setting)) present->set(setting.name, setting.value);
  }
  const std::vector<ProfileSettings::File> changed = present->changed();
  const bool isNew = isNoted && formerPages_.note(profile, former);
  for (const auto& [path, content] : changed) {
    const auto file = files_.createInPlaceOf(path);
    file->write(content);
    file->publish();
  }
  return isNew;
}

void BrowserSettings::tell(const std::vector<std::string>& titles) const {
  std::string text;
  for (const std::string& title : titles) {
    text += title + " now starts with your home page. What it started with before is noted.\n";
  }
  notifications_.show("Zelvane", text + "The notes: " + formerPages_.path());
}

}  // namespace zelvane::platform
