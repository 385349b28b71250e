// Everything that a home keeps for the next start, value by value.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// By names such as "settings.json/applications/Zelvane/Options/StartUp"; what is not there has no
// name. Files that are not ours to divide are one value each.
using StoredValues = std::map<std::string, std::string>;

// Throws where a store is there and cannot be understood.
StoredValues storedIn(const ThrowAwayFolder& folder);

// The names of the values that are neither as before nor as after.
std::vector<std::string> neitherBeforeNorAfter(const StoredValues& now, const StoredValues& before,
                                               const StoredValues& after);

}  // namespace zelvane::test
