// What Windows answers, in the program's own numbers. The only place that translates them.
#pragma once

#include <cstdint>

#include "platform/error.h"

namespace zelvane::platform {

// The error for a code of the system's (as `GetLastError` gives it). One without a number of its
// own is `internal`, described in the system's words.
Error errorFor(std::uint32_t systemCode);

// Throws it, for the present last error.
[[noreturn]] void throwSystemError();

}  // namespace zelvane::platform
