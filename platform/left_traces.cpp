#include "platform/left_traces.h"

#include <algorithm>
#include <utility>

namespace zelvane::platform {

void LeftTraces::add(LeftTrace left) {
  if (std::ranges::count(left_, left) == 0) left_.push_back(std::move(left));
}

std::vector<LeftTrace> LeftTraces::take() { return std::exchange(left_, {}); }

}  // namespace zelvane::platform
