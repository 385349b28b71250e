// What the programs do that are killed here.
#pragma once

#include <vector>

#include "tests/attack/windows/victim.h"

namespace zelvane::test {

// The program, from its start to its exit; one step for each of its user's.
extern const Story kUse;

// The first step of that.
extern const Story kStart;

// What the browsers in the world's home keep is erased; one step.
extern const Story kErase;

// A file of the world, "target", is written anew as "new content"; one step.
extern const Story kReplaceFile;

// The folders "a", "b" and "c" are made in the world's; one step each.
extern const Story kMakeFolders;

// Throws.
extern const Story kFail;

std::vector<Story> allStories();

}  // namespace zelvane::test
