// Paths with "*" in them, and what of the user's own they stand for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvane::platform {

// What is there below `start` under such a path, sorted. "*" stands for any part of one name that
// does not begin with a dot. `start` is taken as it is; below it no link is passed through, and no
// folder of another user's, which does not end a path either. A path may end in anything else, a
// link included.
std::vector<std::string> ownPaths(const std::string& start, std::string_view pattern);

}  // namespace zelvane::platform
