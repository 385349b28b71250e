// Everything that a home keeps for the next start, value by value.
#pragma once

#include "tests/attack/kills/before_or_after.h"
#include "tests/support/throw_away_folder.h"

namespace zelvane::test {

// Files that are not ours to divide are one value each. Throws where a store is there and cannot be
// understood.
StoredValues storedIn(const ThrowAwayFolder& folder);

}  // namespace zelvane::test
