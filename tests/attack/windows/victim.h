// A program in a process of its own, which ends itself beside one of the calls by which it changes
// the disk or the registry.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/attack/windows/headless_desktop.h"

namespace zelvane::test {

enum class Side { before, after };

struct Moment {
  Side side;
  std::size_t call;  // counted from 1
};

struct Life {
  bool killed = false;
  std::size_t steps = 0;           // done whole
  std::vector<std::string> calls;  // made, or about to be made when it was killed
};

// What a victim does, said by name, because the process that does it is another one.
struct Story {
  const char* name;
  // Calls `done` after each step.
  std::function<void(const World& world, const std::function<void()>& done)> tell;
};

// Without a moment to its end. Throws what the story throws.
Life live(const Story& story, const World& world, const std::optional<Moment>& moment);

// In a process that `live` has started: lives, and never returns. In any other does nothing.
void liveIfVictim(const std::vector<Story>& stories);

}  // namespace zelvane::test
