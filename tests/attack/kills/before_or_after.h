// Stored values around a kill.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace zelvane::test {

// By names such as "settings.json/applications/Zelvane/Options/StartUp"; what is not there has no
// name.
using StoredValues = std::map<std::string, std::string>;

// The names of the values that are neither as before nor as after.
std::vector<std::string> neitherBeforeNorAfter(const StoredValues& now, const StoredValues& before,
                                               const StoredValues& after);

}  // namespace zelvane::test
