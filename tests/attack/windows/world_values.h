// Everything that a world keeps for the next start, value by value.
#pragma once

#include "tests/attack/kills/before_or_after.h"
#include "tests/attack/windows/headless_desktop.h"

namespace zelvane::test {

// Values of the registry by names such as "Settings\^Zelvane\^Options\^Start^Up", files by theirs.
// A key without values counts as nothing, and so does what `leftoversIn` tells.
StoredValues storedIn(const World& world);

// Files that wait to be published, with their contents.
StoredValues leftoversIn(const World& world);

}  // namespace zelvane::test
