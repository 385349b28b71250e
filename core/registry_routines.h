// Writing and reading single registry values, the way the whole program does it: keys are opened,
// never created, and what the registry answers to a write is not looked at.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "platform/registry.h"

namespace zelvane::core::Registry {

using Value = std::variant<std::string, std::uint32_t>;

// Opens the key, writes one value and closes the key. Where the key is missing or refused nothing
// is written and nothing is said. Throws only what `SetValueEx` throws.
void SetKeyValue(platform::Registry& registry, platform::Registry::Root root,
                 const std::string& path, const std::string& name, const Value& value,
                 platform::Registry::Type type);

// Writes one value into an open key: a string as its text and one zero byte, which the count of
// bytes includes; a number as its four bytes, the lowest first. A value of the other kind is
// converted first, and throws typeMismatch or overflow where that cannot be done. Any other type
// writes nothing and answers success.
platform::Registry::Result SetValueEx(platform::Registry& registry, platform::Registry::Key key,
                                      const std::string& name, platform::Registry::Type type,
                                      const Value& value);

// The text of a string value up to its first zero byte. Nothing where key or value is missing, or
// the value is no string.
std::optional<std::string> stringValue(platform::Registry& registry, platform::Registry::Root root,
                                       const std::string& path, const std::string& name);

}  // namespace zelvane::core::Registry
