// Profiles of browsers, with one of everything in them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// A profile of Firefox: "seen.example" was visited, typed, and downloaded from; "kept.example" was,
// too, and is bookmarked; "named.example" has a keyword.
void makeFirefoxProfile(const std::string& folder);

// The same pages in a profile of Chromium, but for the keyword.
void makeChromiumProfile(const std::string& folder);

// The lists that name the profiles: of Firefox by a path each, relative to `root` or not.
void listForFirefox(const std::string& root, const std::vector<std::string>& paths);
void listForChromium(const std::string& root, const std::vector<std::string>& names);

void writeFile(const std::string& path, std::string_view content = "content");

}  // namespace zelvane::test
