#include "tests/support/zoo/zoo_case.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include <fnmatch.h>

namespace zelvane::test {
namespace {

enum class Fate { stays, goes, either };

bool isBelow(std::string_view path, std::string_view folder) {
  return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
}

bool isOutside(const ZooCase& zooCase, const std::string& path) {
  return zooCase.refused || (path != zooCase.erased && !isBelow(path, zooCase.erased));
}

Fate fateOf(const ZooCase& zooCase, const std::string& path) {
  for (const std::string& pattern : zooCase.mayStay) {
    if (fnmatch(pattern.c_str(), path.c_str(), 0) == 0) return Fate::either;
  }
  if (path == zooCase.erased || isOutside(zooCase, path)) return Fate::stays;
  for (const std::string& kept : zooCase.stays) {
    if (path == kept || isBelow(path, kept) || isBelow(kept, path)) return Fate::stays;
  }
  return Fate::goes;
}

// A folder whose entries went has another time; a file whose other names went has fewer names.
bool isUntouched(const ManifestEntry& before, const ManifestEntry& after, bool isOutside,
                 std::uint64_t namesGone) {
  return before.mode == after.mode && before.owner == after.owner &&
         before.identity == after.identity && before.content == after.content &&
         (before.modified == after.modified || (before.isFolder() && !isOutside)) &&
         (!before.isFile() || before.names == after.names + namesGone);
}

// Above something that may stay or go, a folder may as well.
bool holdsAnyOf(const std::vector<std::string>& mayStay, const Manifest& after,
                const std::string& folder) {
  return std::ranges::any_of(after, [&](const auto& entry) {
    return isBelow(entry.first, folder) && std::ranges::any_of(mayStay, [&](const auto& pattern) {
             return fnmatch(pattern.c_str(), entry.first.c_str(), 0) == 0;
           });
  });
}

}  // namespace

bool Outcome::isAsItShould() const {
  return lost.empty() && changed.empty() && left.empty() && added.empty();
}

Outcome outcomeOf(const ZooCase& zooCase, const std::vector<std::string>& kept,
                  const Manifest& before, const Manifest& after) {
  ZooCase rules = zooCase;
  rules.stays.insert(rules.stays.end(), kept.begin(), kept.end());
  using Identity = std::pair<dev_t, ino_t>;
  const auto keyOf = [](const ManifestEntry& entry) {
    return Identity{entry.identity.device, entry.identity.inode};
  };
  std::map<Identity, std::uint64_t> namesGone;
  for (const auto& [path, entry] : before) {
    if (!after.contains(path)) ++namesGone[keyOf(entry)];
  }
  Outcome outcome;
  for (const auto& [path, entry] : before) {
    const Fate fate = fateOf(rules, path);
    const auto now = after.find(path);
    if (fate == Fate::stays && now == after.end()) {
      outcome.lost.push_back(path);
    } else if (fate == Fate::stays &&
               !isUntouched(entry, now->second, isOutside(rules, path), namesGone[keyOf(entry)])) {
      outcome.changed.push_back(path);
    } else if (fate == Fate::goes && now != after.end() &&
               !(entry.isFolder() && holdsAnyOf(rules.mayStay, after, path))) {
      outcome.left.push_back(path);
    }
  }
  for (const auto& [path, entry] : after) {
    if (!before.contains(path) && fateOf(rules, path) != Fate::either) {
      outcome.added.push_back(path);
    }
  }
  return outcome;
}

std::vector<ZooGroup> wholeZoo(int pairs) {
  return {{"Links", linkCases()},           {"Mounts", mountCases()},
          {"Races", raceCases(pairs)},      {"Files in use", inUseCases()},
          {"Names and depth", nameCases()}, {"Permissions", permissionCases()},
          {"Kinds of files", kindCases()}};
}

}  // namespace zelvane::test
