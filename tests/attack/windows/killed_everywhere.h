// A story whose program is killed at each moment in turn.
#pragma once

#include <functional>

#include "tests/attack/windows/victim.h"

namespace zelvane::test {

// Gives a new world, as it is before the story.
using Prepared = std::function<World()>;

// What became of it when its program was killed on that side of the last of its calls.
using Judge = std::function<void(const World& world, const Life& life, Side side)>;

// Kills beside every `stride`th call. Fails where the story makes less than three a step, and stops
// at the first moment at which a test fails.
void killEverywhere(const Story& story, std::size_t stride, const Prepared& prepared,
                    const Judge& judge);

}  // namespace zelvane::test
