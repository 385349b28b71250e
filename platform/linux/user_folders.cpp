#include "platform/linux/user_folders.h"

#include <algorithm>

namespace zelvane::platform {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// The text between the quotes; a backslash protects the character behind it.
std::optional<std::string> unquoted(std::string_view value) {
  if (value.size() < 2 || value.front() != '"' || value.back() != '"') return std::nullopt;
  value = value.substr(1, value.size() - 2);
  std::string text;
  for (std::size_t at = 0; at < value.size(); ++at) {
    if (value[at] == '\\' && at + 1 < value.size()) ++at;
    text += value[at];
  }
  return text;
}

std::optional<std::string> pathIn(std::string_view value, const std::string& home) {
  std::optional<std::string> path = unquoted(value);
  if (!path) return std::nullopt;
  constexpr std::string_view kHome = "$HOME";
  if (*path == kHome || path->starts_with(std::string(kHome) + "/")) {
    path->replace(0, kHome.size(), home);
  }
  if (!path->starts_with('/')) return std::nullopt;
  while (path->size() > 1 && path->ends_with('/')) path->pop_back();
  return path;
}

}  // namespace

std::optional<std::string> userFolder(std::string_view list, std::string_view key,
                                      const std::string& home) {
  std::optional<std::string> found;
  while (!list.empty()) {
    const std::string_view line = list.substr(0, list.find('\n'));
    list.remove_prefix(std::min(line.size() + 1, list.size()));
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || trimmed(line.substr(0, equals)) != key) continue;
    if (auto path = pathIn(trimmed(line.substr(equals + 1)), home)) found = std::move(path);
  }
  return found;
}

}  // namespace zelvane::platform
