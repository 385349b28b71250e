// Which settings of a browser's make up what the program wants of it: as data.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/shared/browsers/browser.h"

namespace zelvane::platform {

struct Setting {
  std::string name;      // as the family calls it (see profile_settings.h)
  nlohmann::json value;  // what it is to be
  // What the browser does where it is not set at all; nothing where each version has its own way.
  std::optional<nlohmann::json> unset = std::nullopt;
};

// The browser starts with this page, and its button for the home page leads to it. An empty address
// is a blank page: browsers take none for leave to choose for themselves.
std::vector<Setting> startPageSettings(Family family, const std::string& address);

// The browser offers addresses while one types, or does not.
std::vector<Setting> suggestionSettings(Family family, bool suggests);

}  // namespace zelvane::platform
