// What the registries that Zelvane brings along have in common: how a path is read, and which keys
// a new one holds.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace zelvane::platform {

// The names of the keys from the root down to `path`. A "\" too many does not matter; an empty path
// is the root itself.
inline std::vector<std::string> keyNames(std::string_view path) {
  std::vector<std::string> names;
  while (!path.empty()) {
    const std::string_view name = path.substr(0, path.find('\\'));
    if (!name.empty()) names.emplace_back(name);
    path.remove_prefix(std::min(name.size() + 1, path.size()));
  }
  return names;
}

struct KeyPath {
  Registry::Root root;
  std::string_view path;
};

// Keys that a desktop has before any program asks. The program opens keys and hardly ever makes
// one, so without these its settings would find no place.
inline constexpr std::array kKeysOfANewDesktop{
    KeyPath{Registry::Root::classes, ""},
    KeyPath{Registry::Root::currentUser, R"(Software\Classes)"},
    KeyPath{Registry::Root::currentUser, R"(Software\Microsoft\Internet Explorer\Main)"},
    KeyPath{Registry::Root::currentUser, R"(Software\Microsoft\Windows\CurrentVersion\Run)"},
    KeyPath{Registry::Root::currentUser,
            R"(Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete)"},
    KeyPath{Registry::Root::localMachine, R"(SOFTWARE\Classes)"},
};

}  // namespace zelvane::platform
