#include "platform/linux/os_release.h"

#include <algorithm>

namespace zelvane::platform {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string unquoted(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back();
  if (quoted && value.front() == '\'') return std::string(value.substr(1, value.size() - 2));
  if (quoted && value.front() == '"') value = value.substr(1, value.size() - 2);
  std::string text;
  for (std::size_t at = 0; at < value.size(); ++at) {
    if (value[at] == '\\' && at + 1 < value.size()) ++at;
    text += value[at];
  }
  return text;
}

}  // namespace

std::string releaseName(std::string_view text) {
  constexpr std::string_view kAssignment = "PRETTY_NAME=";
  std::string name;
  while (!text.empty()) {
    const std::string_view line = trimmed(text.substr(0, text.find('\n')));
    text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    if (line.starts_with(kAssignment)) name = unquoted(line.substr(kAssignment.size()));
  }
  return name.empty() ? "Linux" : name;
}

}  // namespace zelvane::platform
