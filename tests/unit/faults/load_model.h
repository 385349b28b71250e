// What a start has to make of a desktop and of the window when some of its calls fail.
#pragma once

#include <vector>

#include "tests/unit/faults/script.h"

namespace zelvane::faults {

// Follows from the rules alone: what cannot be read counts as not there, what cannot be written is
// passed over in silence, and a store that complains is told in a box of its own.
Facts expectedAfterLoad(const Facts& before, const std::vector<Call>& failed);

}  // namespace zelvane::faults
