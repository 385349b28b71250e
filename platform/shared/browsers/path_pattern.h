// Paths with "*" in them, and what they stand for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/shared/browsers/browser_desktop.h"

namespace zelvane::platform {

// What "*" stands for in a pattern of one name, which may have one of them: an empty text where the
// pattern has none and is the name; nothing where the name does not fit. A "*" at the beginning
// stands for no dot.
std::optional<std::string> partFor(std::string_view pattern, std::string_view name);

struct Match {
  std::string path;
  std::vector<std::string> parts;  // what each "*" stood for
};

// What has this path below `start`. Behind a link there is nothing that anyone may touch: `other`.
PathKind kindBelow(const BrowserDesktop& desktop, const std::string& start, std::string_view path);

// What is there below `start` under such a path; "*" stands for any part of one name that does not
// begin with a dot. The path itself where it has no "*" and something is there. No link is passed
// through on the way but the one that snap calls "current".
std::vector<Match> matches(const BrowserDesktop& desktop, const std::string& start,
                           std::string_view pattern);

// A pattern's first part, "{home}", in the folder of that name; nothing where there is no such
// folder.
std::vector<Match> matches(const BrowserDesktop& desktop, std::string_view pattern);

// The path that a pattern becomes with each "*" replaced by the part of that place; as given, where
// parts are missing. Empty where the pattern is, or names a folder that this desktop has not.
std::string filledIn(const UserFolders& folders, std::string_view pattern,
                     const std::vector<std::string>& parts);

}  // namespace zelvane::platform
