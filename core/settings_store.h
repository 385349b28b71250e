// The user's choices between two runs: texts under an application name, a section and a key.
#pragma once

#include <string>
#include <string_view>

namespace zelvane::platform {
class Identity;
class SettingsBackend;
}  // namespace zelvane::platform

namespace zelvane::core {

// Everything that is stored (a flag is "1" or "0"; nothing is cached; no key is ever deleted):
//
//   application     section       key              absent means  what it is
//   title           Options       StartUp          "0"           flag: start with the session
//   title           PopupKiller   IsActive         "1"           anything but "0" is on
//   title           HomePage      StartPage        about:blank   the home page as typed
//   program folder  Settings      Index0 ... 15    3             state of that cleaning option
//   title           Schedule      RunOn            None          index in the list of kinds
//   title           Schedule      Date             Null          the schedule's day
//   title           Schedule      Time             Null          the schedule's time of day
//   title           Schedule      RunAfter         (empty)       hours between two runs
//   title           Schedule      LastRunTime      (empty)       "hh:mm:ss", start of the last run
class SettingsStore {
 public:
  // The cleaning options belong to the folder that the program runs from, so that a copy in another
  // folder has options of its own; all else is shared by all copies.
  enum class Application { title, programFolder };

  SettingsStore(platform::SettingsBackend& backend, const platform::Identity& identity)
      : backend_(backend), identity_(identity) {}

  // The stored text, also an empty one, or `absent` where nothing is stored.
  std::string load(Application application, const std::string& section, const std::string& key,
                   std::string_view absent) const;

  // Creates section and key as needed. Throws when the store cannot be written.
  void save(Application application, const std::string& section, const std::string& key,
            const std::string& text);

 private:
  std::string name(Application application) const;

  platform::SettingsBackend& backend_;
  const platform::Identity& identity_;
};

}  // namespace zelvane::core
