// The system's functions by which a program changes the disk or the registry.
#pragma once

#include <span>
#include <string_view>

#include "tests/attack/windows/imports.h"

namespace zelvane::test {

// Hears of such calls, and may end the process in the middle.
class Listener {
 public:
  virtual ~Listener() = default;

  virtual void beforeCall(const char* function) = 0;
  virtual void afterCall() = 0;
};

// From now on, every call of such a function that this program makes is told to `listener`, which
// lives until nobody hears any more. Calls that the system's libraries make in their turn are not
// seen: each of ours is one step to the program, whatever it sets in motion. Neither are syncs,
// which change nothing that a kill leaves, nor the closing of a file that is deleted when it is
// closed: a kill closes it as well.
void hearChanges(Listener& listener);
void hearNoMore();

// Whether its calls are heard, or it is known to change nothing. One that is neither is new.
bool isHeard(std::string_view function);
bool isHarmless(const Import& import);

}  // namespace zelvane::test
