#include <algorithm>
#include <array>

#include "platform/error.h"
#include "platform/shared/browsers/browser.h"
#include "platform/shared/browsers/browser_desktop.h"
#include "platform/shared/browsers/json_file.h"
#include "platform/shared/browsers/path_pattern.h"
#include "platform/shared/ini_text.h"

namespace zelvane::platform {
namespace {

// As the browser's own list has it.
struct Listed {
  std::string name;
  std::string path;  // below the root, unless `isWhole`
  bool isWhole = false;
};

constexpr std::uint64_t kLongestList = std::uint64_t{1} << 20U;

std::string listText(const std::string& path, const Files& files) {
  try {
    return files.readWhole(path, kLongestList);
  } catch (const Error&) {
    return "";  // as good as none
  }
}

// profiles.ini:
//
//     [Profile0]
//     Name=default-release
//     IsRelative=1
//     Path=abcd1234.default-release
//
// Numbers may be missing where a profile was removed.
std::vector<Listed> listedByFirefox(const std::string& root, const Files& files) {
  constexpr int kMostProfiles = 256;
  const IniText list(listText(root + "/profiles.ini", files));
  std::vector<Listed> profiles;
  for (int number = 0; number < kMostProfiles; ++number) {
    const std::string section = "Profile" + std::to_string(number);
    const std::optional<std::string> path = list.find(section, "Path");
    if (!path || path->empty()) continue;
    profiles.push_back({list.find(section, "Name").value_or(*path), *path,
                        list.find(section, "IsRelative").value_or("1") == "0"});
  }
  return profiles;
}

// "Local State", a file of JSON: the members of profile.info_cache are called like the folders.
// Some of the family have but one profile, without a list, which is the root itself or "Default".
std::vector<Listed> listedByChromium(const std::string& root, const BrowserDesktop& desktop,
                                     const Files& files) {
  std::vector<Listed> profiles;
  try {
    const auto state = readJson(root + "/Local State", desktop, files);
    const nlohmann::json::json_pointer list("/profile/info_cache");
    if (state && state->contains(list) && state->at(list).is_object()) {
      for (const auto& [folder, facts] : state->at(list).items()) {
        const auto name = facts.is_object() ? facts.find("name") : facts.end();
        const bool isNamed = facts.is_object() && name != facts.end() && name->is_string();
        profiles.push_back({isNamed ? name->get<std::string>() : folder, folder});
      }
    }
  } catch (const Error&) {
    // What is left then is what can be seen without the list.
  }
  for (const char* usual : {"Default", ""}) {
    const bool isListed = std::ranges::count(profiles, usual, &Listed::path) > 0;
    const std::string folder = *usual == '\0' ? root : root + "/" + usual;
    if (!isListed && desktop.kindOf(folder + "/Preferences") != PathKind::nothing)
      profiles.push_back({"Default", usual});
  }
  return profiles;
}

bool isBelow(const std::string& folder, const std::string& root) {
  return folder.starts_with(root + "/");
}

// A list may name any folder. What is in it tells whether it is a profile.
bool looksLikeProfile(const std::string& folder, Family family, const BrowserDesktop& desktop) {
  static constexpr std::array kOfFirefox = {"prefs.js", "times.json", "places.sqlite"};
  static constexpr std::array kOfChromium = {"Preferences", "Secure Preferences", "History"};
  return std::ranges::any_of(
      family == Family::firefox ? kOfFirefox : kOfChromium,
      [&](const char* name) { return desktop.kindOf(folder + "/" + name) == PathKind::file; });
}

// Collects the profiles of all browsers, each once.
class Collection {
 public:
  explicit Collection(const BrowserDesktop& desktop) : desktop_(desktop) {}

  void add(const Installation& installation, const std::string& root, const std::string& cacheRoot,
           const Listed& listed) {
    const std::optional<std::string> folder = desktop_.ownFolder(pathOfListed(root, listed));
    if (!folder || std::ranges::count(profiles_, *folder, &Profile::folder) > 0) return;
    if (!looksLikeProfile(*folder, installation.family, desktop_)) return;
    // A relative path leads below its root and nowhere else.
    const bool isInRoot = *folder == root || isBelow(*folder, root);
    if (!listed.isWhole && !isInRoot) return;
    profiles_.push_back(
        {std::string(installation.browser), listed.name, installation.family, root, *folder,
         cacheRoot.empty() || !isInRoot ? *folder : cacheRoot + folder->substr(root.size())});
  }

  std::vector<Profile> take() { return std::move(profiles_); }

 private:
  static std::string pathOfListed(const std::string& root, const Listed& listed) {
    if (listed.isWhole) return listed.path;
    return listed.path.empty() ? root : root + "/" + listed.path;
  }

  const BrowserDesktop& desktop_;
  std::vector<Profile> profiles_;
};

}  // namespace

std::vector<Profile> profilesThere(const BrowserDesktop& desktop, const Files& files) {
  Collection profiles(desktop);
  for (const Installation& installation : knownInstallations()) {
    for (const Match& match : matches(desktop, installation.root)) {
      const std::optional<std::string> root = desktop.ownFolder(match.path);
      if (!root) continue;
      const std::string cacheRoot = filledIn(desktop.folders(), installation.cache, match.parts);
      const bool isFirefox = installation.family == Family::firefox;
      for (const Listed& listed :
           isFirefox ? listedByFirefox(*root, files) : listedByChromium(*root, desktop, files)) {
        profiles.add(installation, *root, cacheRoot, listed);
      }
    }
  }
  return profiles.take();
}

}  // namespace zelvane::platform
