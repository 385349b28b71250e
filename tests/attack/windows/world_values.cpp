#include "tests/attack/windows/world_values.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/windows/registry_key.h"
#include "platform/windows/wide_text.h"

namespace zelvane::test {
namespace {

namespace fs = std::filesystem;
using platform::plainText;
using platform::wideText;

// How many keys and values a key holds, and in how many letters the longest of their names is told.
struct KeyFacts {
  DWORD keys = 0;
  DWORD values = 0;
  DWORD longest = 0;
};

KeyFacts factsOf(HKEY key) {
  KeyFacts facts;
  DWORD keyName = 0;
  DWORD valueName = 0;
  if (RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &facts.keys, &keyName, nullptr,
                       &facts.values, &valueName, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
    throw std::runtime_error("a key tells nothing");
  }
  facts.longest = std::max(keyName, valueName) + 1;
  return facts;
}

// Adds what lies below an open key; `name` is empty or ends with "\".
void add(HKEY key, const std::string& name, StoredValues& values) {
  const KeyFacts facts = factsOf(key);
  std::wstring text(facts.longest, L'\0');
  for (DWORD at = 0; at < facts.values; ++at) {
    DWORD length = facts.longest;
    RegEnumValueW(key, at, text.data(), &length, nullptr, nullptr, nullptr, nullptr);
    const auto value = platform::readValue(key, text.substr(0, length)).value();
    values[name + plainText({text.data(), length})] =
        std::to_string(value.type) + " " +
        std::string(reinterpret_cast<const char*>(value.data.data()), value.data.size());
  }
  for (DWORD at = 0; at < facts.keys; ++at) {
    DWORD length = facts.longest;
    RegEnumKeyExW(key, at, text.data(), &length, nullptr, nullptr, nullptr, nullptr);
    const std::wstring below = text.substr(0, length);
    add(platform::openKey(key, below, KEY_READ).key.get(), name + plainText(below) + "\\", values);
  }
}

bool isLeftover(const fs::path& path) {
  return path.filename().wstring().starts_with(L".zelvane-");
}

std::vector<fs::path> filesOf(const World& world) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(wideText(world.folder))) {
    if (!entry.is_directory()) files.push_back(entry.path());
  }
  return files;
}

std::string contentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

StoredValues storedIn(const World& world) {
  StoredValues values;
  const auto key = platform::openKey(HKEY_CURRENT_USER, wideText(world.key), KEY_READ);
  if (key.status == ERROR_SUCCESS) add(key.key.get(), "", values);
  for (const fs::path& file : filesOf(world)) {
    if (isLeftover(file)) continue;
    values[plainText(file.wstring()).substr(world.folder.size() + 1)] = contentOf(file);
  }
  return values;
}

StoredValues leftoversIn(const World& world) {
  StoredValues contents;
  for (const fs::path& file : filesOf(world)) {
    if (isLeftover(file)) contents[plainText(file.filename().wstring())] = contentOf(file);
  }
  return contents;
}

}  // namespace zelvane::test
