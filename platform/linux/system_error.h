// What the kernel answers, in the program's own numbers. The only place that translates them.
#pragma once

#include <string>

#include "platform/error.h"

namespace zelvane::platform {

// The error for an `errno` value. One without a number of its own is `internal`, described in the
// system's words.
Error errorFor(int systemNumber);

// Throws it, for the present `errno`.
[[noreturn]] void throwSystemError();

// The text as a path for the kernel. A path with a zero byte inside, which the kernel would cut
// there and take for another one, is refused with fileNotFound.
const char* kernelPath(const std::string& path);

}  // namespace zelvane::platform
