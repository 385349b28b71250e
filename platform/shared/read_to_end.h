// A stream's whole content.
#pragma once

#include <cstdint>
#include <string>

#include "platform/files.h"

namespace zelvane::platform {

// Throws accessError where there are more than `limit` bytes, and what the stream throws.
std::string readToEnd(ReadStream& stream, std::uint64_t limit);

}  // namespace zelvane::platform
