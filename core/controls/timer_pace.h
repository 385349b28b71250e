// How often a shell ticks a timer of the program.
#pragma once

#include <algorithm>
#include <chrono>

#include "core/controls/form.h"
#include "core/controls/timer.h"

namespace zelvane::controls {

// What it waits between two ticks: the timer's interval. While nobody sees the form, hidden or
// minimised, a quarter of a second at least, so that a program that waits for its hour all day does
// not wake the computer a hundred times a second. That is still more than once in each second of
// the clock, and a schedule is set to the second.
inline std::chrono::milliseconds paceOf(const Timer& timer, const Form& form) {
  constexpr std::chrono::milliseconds kUnseen(250);
  const bool seen = form.visible() && form.state() == Form::State::normal;
  return seen ? timer.interval() : std::max(timer.interval(), kUnseen);
}

}  // namespace zelvane::controls
