// Numbers of a fixed width in texts that stand for dates and times.
#pragma once

#include <cstddef>
#include <string_view>

namespace zelvane::scheduler {

// The number that the `count` characters from `at` on are; typeMismatch where one of them is no
// digit or missing.
int digitsAt(std::string_view text, std::size_t at, std::size_t count);

}  // namespace zelvane::scheduler
