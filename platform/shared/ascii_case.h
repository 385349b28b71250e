// Names that are the same whatever the case of their ASCII letters.
#pragma once

#include <algorithm>
#include <string_view>

namespace zelvane::platform {

constexpr char asciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool sameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, asciiLower, asciiLower);
}

// Orders the keys of a map so.
struct NameLess {
  using is_transparent = void;

  bool operator()(std::string_view a, std::string_view b) const {
    return std::ranges::lexicographical_compare(a, b, {}, asciiLower, asciiLower);
  }
};

}  // namespace zelvane::platform
