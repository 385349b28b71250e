// How many fonts, brushes, pictures and the like this process holds.
#pragma once

#include <cstddef>

namespace zelvane::test {

std::size_t gdiObjects();

}  // namespace zelvane::test
