#include "platform/shared/browsers/leveldb_store.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/error.h"
#include "platform/shared/browsers/level_db.h"
#include "platform/shared/browsers/path_pattern.h"
#include "platform/shared/browsers/tree_removal.h"

namespace zelvane::platform {
namespace {

bool holdsAnyOf(std::string_view text, const std::vector<std::string_view>& parts) {
  return std::ranges::any_of(parts,
                             [&](std::string_view part) { return text.find(part) != text.npos; });
}

bool goes(const LevelDbRule& rule, std::string_view key, std::string_view value) {
  if (!rule.going.empty()) return holdsAnyOf(key, rule.going);
  return !holdsAnyOf(key, rule.staying) && !(rule.valuesCount && holdsAnyOf(value, rule.staying));
}

}  // namespace

LevelDbStore::LevelDbStore(std::string profile, const LevelDbRule& rule,
                           const BrowserDesktop& desktop, FolderTree& tree)
    : profile_(std::move(profile)), rule_(rule), desktop_(desktop), tree_(tree) {}

bool LevelDbStore::holdsAnything() const {
  try {
    putBack();
    if (desktop_.kindOf(newPath()) != PathKind::nothing ||
        desktop_.kindOf(oldPath()) != PathKind::nothing) {
      return true;
    }
    const PathKind kind = kindBelow(desktop_, profile_, std::string(rule_.folder) + "/CURRENT");
    if (kind != PathKind::file) return kind == PathKind::other;
    const LevelDb database(path(), LevelDb::Open::present);
    bool found = false;
    database.forEach([&](std::string_view key, std::string_view value) {
      found = found || goes(rule_, key, value);
    });
    return found;
  } catch (const Error&) {
    return true;
  }
}

void LevelDbStore::erase() {
  const PathKind kind = kindBelow(desktop_, profile_, rule_.folder);
  if (kind != PathKind::folder && kind != PathKind::nothing) {
    throw Error(ErrorNumber::accessError, path() + " is no folder");
  }
  putBack();
  removeOurs();
  if (desktop_.kindOf(path()) == PathKind::nothing) return;
  {
    const LevelDb from(path(), LevelDb::Open::present);
    const LevelDb to(newPath(), LevelDb::Open::anew);
    to.addFrom(from, [this](std::string_view key, std::string_view value) {
      return !goes(rule_, key, value);
    });
  }
  desktop_.putInPlace(newPath(), path(), oldPath());
  removeOurs();
}

std::string LevelDbStore::path() const { return profile_ + "/" + std::string(rule_.folder); }

void LevelDbStore::putBack() const {
  const bool isMissing = kindBelow(desktop_, profile_, rule_.folder) == PathKind::nothing;
  if (isMissing && desktop_.kindOf(oldPath()) == PathKind::folder) {
    desktop_.rename(oldPath(), path());
  }
}

void LevelDbStore::removeOurs() {
  for (const std::string& ours : {newPath(), oldPath()}) {
    const std::size_t separator = ours.rfind('/');
    if (desktop_.kindOf(ours) == PathKind::nothing) continue;
    removeWholeFolder(tree_, ours.substr(0, separator), ours.substr(separator + 1));
  }
}

}  // namespace zelvane::platform
