// A user's Windows to throw away: what the program may erase there is made for one test.
#pragma once

#include <list>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/desktop/windows/registry_tree.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// The special folders, the folder for temporary files and the trash of a program that is started
// in it are new and empty, nothing is stored of Zelvane, and what it reads, sets and erases in the
// registry is empty as well. All of it is as before in the end.
//
// Only under Wine, in an environment of its own: anywhere else the constructor throws before it has
// touched anything, because here buttons are pressed that erase a user's files.
class ThrowAwayWorld {
 public:
  ThrowAwayWorld();
  ThrowAwayWorld(const ThrowAwayWorld&) = delete;
  ThrowAwayWorld& operator=(const ThrowAwayWorld&) = delete;
  ~ThrowAwayWorld();

  // Keys of the user's other programs, and Zelvane's own.
  static constexpr auto kBrowser = R"(Software\Microsoft\Internet Explorer\Main)";
  static constexpr auto kTypedAddresses = R"(Software\Microsoft\Internet Explorer\TypedURLs)";
  static constexpr auto kRunHistory =
      R"(Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU)";
  static constexpr auto kAutoComplete =
      R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)";
  static constexpr auto kRun = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
  static constexpr auto kZelvane = R"(Software\Zelvane)";

  std::string documents() const { return folder_ / "Documents"; }
  std::string favorites() const { return folder_ / "Favorites"; }
  std::string recent() const { return folder_ / "Recent"; }
  std::string cache() const { return folder_ / "Cache"; }
  std::string cookies() const { return folder_ / "Cookies"; }
  std::string history() const { return folder_ / "History"; }
  // The user's folder for what programs keep, which moves with the user.
  std::string roaming() const { return folder_ / "Roaming"; }
  std::string temporary() const { return folder_ / "Temp"; }
  std::string trash() const { return folder_ / "home/.local/share/Trash"; }
  // Any other place: nobody asked to erase it, and it goes with this object.
  std::string operator/(const std::string& name) const { return folder_ / name; }

  // Puts a file into the trash; the path is where its content is then.
  std::string discard(const std::string& name) const;

  // From the next start on that special folder ("Personal", "Favorites", "Recent", "Cache",
  // "Cookies", "History"), or the one for temporary files, is elsewhere, or there is no trash.
  static void nameFolder(const std::string& name, const std::string& path);
  void nameTemporary(const std::string& path);
  void removeTrash() const;

  // What a program of this world is given as its environment, in the system's form.
  std::wstring environment() const;

  // Everything that Zelvane stores.
  static std::optional<RegistryTree> allStored() { return readKeys(kZelvane); }

  // The line that Zelvane writes into the system's win.ini where there is none.
  static std::optional<std::string> profileEntry();
  static void setProfileEntry(const std::optional<std::string>& text);

  // The paths of all files in the special folders and the one for temporary files. A program may be
  // at work there.
  std::vector<std::string> files() const;

 private:
  // By the names that they have in the registry.
  std::vector<std::pair<std::string, std::string>> specialFolders() const;

  ThrowAwayFolder folder_;
  std::list<KeptKey> kept_;
  std::optional<std::string> keptEntry_ = profileEntry();
  std::map<std::wstring, std::string> variables_;
};

}  // namespace zelvane::test
