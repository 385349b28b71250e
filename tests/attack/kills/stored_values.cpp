#include "tests/attack/kills/stored_values.h"

#include <nlohmann/json.hpp>

namespace zelvane::test {

using nlohmann::json;

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
       {"home/.config/zelvane/win.ini", "home/.config/zelvane/ledger.txt",
        "home/.config/autostart/zelvane.desktop", "home/.local/share/recently-used.xbel"}) {
    if (folder.has(file)) values[file] = folder.read(file);
  }
  return values;
}

}  // namespace zelvane::test
