// Making a file of streams: Microsoft's compound file.
#pragma once

#include <string>
#include <vector>

#include "platform/shared/compound_file.h"

namespace zelvane::platform {

// The content of a file of these streams, in this order: of version 3, with nothing in it but the
// streams and zeros. (Made by the system's library it may hold whatever lay in the memory before.)
// The names differ in more than case, and have 1 to 31 letters of ASCII. Streams that are longer
// together than some 7 MB are refused with accessError.
std::string compoundFile(const std::vector<NamedStream>& streams);

}  // namespace zelvane::platform
