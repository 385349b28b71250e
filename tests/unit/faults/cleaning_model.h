// What a run with every option ticked has to leave behind when some of its calls fail.
#pragma once

#include <vector>

#include "tests/unit/faults/cleaning_world.h"
#include "tests/unit/faults/script.h"

namespace zelvane::faults {

// Follows from the rules alone: each task does what does not depend on the failed call, and of the
// log only a path that was not found is missing.
Facts expectedAfterRun(const Facts& before, const CleaningWorld& world,
                       const std::vector<Call>& failed);

}  // namespace zelvane::faults
