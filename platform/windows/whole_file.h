// Small files that are read whole and replaced whole.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zelvane::platform {

// In bytes; a file that is larger is refused.
inline constexpr std::uint64_t kLargestWholeFile = std::uint64_t{16} * 1024 * 1024;

// Nothing where there is no such file. A link is never followed but refused with accessError, other
// refusals are thrown as usual.
std::optional<std::string> readWholeFile(const std::string& path);

// Replaces the file, or makes it, in one step and durably; a link is replaced itself. Who may use
// it is what the rules of its folder say. Where that fails nothing has changed, and it throws.
void replaceWholeFile(const std::string& path, std::string_view content);

}  // namespace zelvane::platform
