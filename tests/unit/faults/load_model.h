// What a start has to make of a desktop and of the window when some of its calls fail.
#pragma once

#include <vector>

#include "tests/unit/faults/script.h"

namespace zelvane::faults {

// Follows from the rules alone: what cannot be read counts as not there, what cannot be written is
// passed over in silence, and a store that complains is told in a box of its own. Where the sound's
// path cannot be read, that is told, and nothing is loaded.
Facts expectedAfterLoad(const Facts& before, const std::vector<Call>& failed);

// Whether that is so.
bool endsTheLoad(const std::vector<Call>& failed);

}  // namespace zelvane::faults
