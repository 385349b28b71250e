// What the user is told of traces that a run had to leave.
#pragma once

#include <string>
#include <vector>

#include "platform/left_traces.h"

namespace zelvane::cleaner {

// One line each.
std::string noticeOf(const std::vector<platform::LeftTrace>& left);

}  // namespace zelvane::cleaner
