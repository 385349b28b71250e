#include "tests/attack/kills/stored_values.h"

#include <nlohmann/json.hpp>

namespace zelvane::test {

using nlohmann::json;

namespace {

// Paths in the folder are told from it on, so that two folders can be compared.
std::string withoutPlace(std::string text, const ThrowAwayFolder& folder) {
  const std::string place = folder.path().string();
  for (std::size_t at = text.find(place); at != std::string::npos; at = text.find(place, at)) {
    text.erase(at, place.size());
  }
  return text;
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
       {"home/.config/zelvane/win.ini", "home/.config/zelvane/ledger.txt",
        "home/.config/autostart/zelvane.desktop", "home/.local/share/recently-used.xbel"}) {
    if (folder.has(file)) values[file] = withoutPlace(folder.read(file), folder);
  }
  return values;
}

}  // namespace zelvane::test
