#include "platform/linux/mime_associations.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/linux/key_file.h"

namespace zelvane::platform {
namespace {

namespace fs = std::filesystem;

constexpr int kDeepest = 8;  // folders of entries in folders of entries

// A folder with lists, and perhaps with entries.
struct Level {
  std::string folder;
  bool hasEntries = false;
};

std::vector<Level> levelsOf(const Environment& environment) {
  std::vector<Level> levels{{environment.configHome}};
  for (const std::string& folder : environment.configDirs) levels.push_back({folder});
  levels.push_back({environment.dataHome + "/applications", true});
  for (const std::string& folder : environment.dataDirs) {
    levels.push_back({folder + "/applications", true});
  }
  return levels;
}

// "vendor/program.desktop" is known as "vendor-program.desktop".
std::string nameOf(const fs::path& file, const std::string& folder) {
  std::string name = file.lexically_relative(folder).string();
  std::ranges::replace(name, '/', '-');
  return name;
}

// All entries in a folder, by the names that they are known by.
std::vector<std::pair<std::string, std::string>> entriesIn(const std::string& folder) {
  std::vector<std::pair<std::string, std::string>> entries;
  std::error_code failure;
  for (fs::recursive_directory_iterator at(folder, failure), end; !failure && at != end;
       at.increment(failure)) {
    if (at.depth() >= kDeepest) at.disable_recursion_pending();
    if (at->path().extension() == ".desktop") {
      entries.emplace_back(nameOf(at->path(), folder), at->path().string());
    }
  }
  std::ranges::sort(entries);
  return entries;
}

class Search {
 public:
  Search(const std::string& type, const Environment& environment)
      : type_(type), environment_(environment), levels_(levelsOf(environment)) {}

  std::optional<DesktopEntry> chosen() const {
    for (const Level& level : levels_) {
      std::vector<std::string> lists;
      for (const std::string& desktop : environment_.desktops) {
        lists.push_back(desktop + "-mimeapps.list");
      }
      lists.emplace_back("mimeapps.list");
      for (const std::string& list : lists) {
        const KeyFile file = readKeyFile(level.folder + "/" + list);
        if (auto entry = firstOf(file.list("Default Applications", type_), {})) return entry;
      }
    }
    return std::nullopt;
  }

  std::optional<DesktopEntry> associated() const {
    // What was removed, or what an entry of the same name in a folder before stands for.
    std::set<std::string> passed;
    for (const Level& level : levels_) {
      const KeyFile file = readKeyFile(level.folder + "/mimeapps.list");
      if (auto entry = firstOf(file.list("Added Associations", type_), passed)) return entry;
      for (std::string& name : file.list("Removed Associations", type_)) {
        passed.insert(std::move(name));
      }
      if (!level.hasEntries) continue;
      for (const auto& [name, path] : entriesIn(level.folder)) {
        if (!passed.insert(name).second) continue;
        auto entry = readDesktopEntry(path, environment_);
        if (entry && std::ranges::count(entry->types, type_) > 0) return entry;
      }
    }
    return std::nullopt;
  }

 private:
  std::optional<DesktopEntry> firstOf(const std::vector<std::string>& names,
                                      const std::set<std::string>& passed) const {
    for (const std::string& name : names) {
      if (passed.contains(name)) continue;
      if (auto entry = named(name)) return entry;
    }
    return std::nullopt;
  }

  // The entry of that name. The first file of the name counts, whatever is in it.
  std::optional<DesktopEntry> named(const std::string& name) const {
    if (name.find('/') != std::string::npos) return std::nullopt;
    for (const Level& level : levels_) {
      if (!level.hasEntries) continue;
      std::string path = name;
      for (;;) {
        const std::string file = level.folder + "/" + path;
        std::error_code failure;
        if (fs::exists(file, failure)) return readDesktopEntry(file, environment_);
        const std::size_t dash = path.find('-');
        if (dash == std::string::npos) break;
        path[dash] = '/';
      }
    }
    return std::nullopt;
  }

  const std::string& type_;
  const Environment& environment_;
  std::vector<Level> levels_;
};

}  // namespace

std::optional<DesktopEntry> programForType(const std::string& type,
                                           const Environment& environment) {
  const Search search(type, environment);
  if (auto entry = search.chosen()) return entry;
  return search.associated();
}

}  // namespace zelvane::platform
