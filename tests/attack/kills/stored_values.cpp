#include "tests/attack/kills/stored_values.h"

#include <optional>
#include <set>

#include <nlohmann/json.hpp>

namespace zelvane::test {
namespace {

using nlohmann::json;

std::optional<std::string> valueIn(const StoredValues& values, const std::string& name) {
  const auto found = values.find(name);
  if (found == values.end()) return std::nullopt;
  return found->second;
}

}  // namespace

StoredValues storedIn(const ThrowAwayFolder& folder) {
  StoredValues values;
  for (const std::string name : {"settings.json", "registry.json"}) {
    const std::string file = "home/.config/zelvane/" + name;
    if (!folder.has(file)) continue;
    const json leaves = json::parse(folder.read(file)).flatten();
    for (const auto& [place, value] : leaves.items()) {
      // What is empty, as a key before its first value, counts as nothing.
      if (!value.is_null()) values[name + place] = value.dump();
    }
  }
  for (const std::string file :
       {"home/.config/zelvane/win.ini", "home/.local/share/recently-used.xbel"}) {
    if (folder.has(file)) values[file] = folder.read(file);
  }
  return values;
}

std::vector<std::string> neitherBeforeNorAfter(const StoredValues& now, const StoredValues& before,
                                               const StoredValues& after) {
  std::set<std::string> names;
  for (const StoredValues* values : {&now, &before, &after}) {
    for (const auto& [name, value] : *values) names.insert(name);
  }
  std::erase_if(names, [&](const std::string& name) {
    const auto value = valueIn(now, name);
    return value == valueIn(before, name) || value == valueIn(after, name);
  });
  return {names.begin(), names.end()};
}

}  // namespace zelvane::test
