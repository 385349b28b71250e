// Takes away what a test has made, however hard it has made that.
#pragma once

#include <filesystem>

namespace zelvane::test {

// Removes the folder with everything in it, also what is protected. Links are not followed. What
// cannot be removed stays without a word.
void removeTree(const std::filesystem::path& folder);

}  // namespace zelvane::test
