#include "platform/linux/key_file.h"

#include <algorithm>
#include <cstdint>

#include "platform/error.h"
#include "platform/linux/linux_files.h"

namespace zelvane::platform {
namespace {

constexpr std::uint64_t kLongestFile = std::uint64_t{1} << 20U;

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// The next part up to the separator, which both go from the text.
std::string_view takePart(std::string_view& text, char separator) {
  const std::string_view part = text.substr(0, text.find(separator));
  text.remove_prefix(std::min(part.size() + 1, text.size()));
  return part;
}

char unescaped(char letter) {
  switch (letter) {
    case 's':
      return ' ';
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'r':
      return '\r';
    default:
      return letter;
  }
}

}  // namespace

KeyFile::KeyFile(std::string_view text) {
  std::string group;
  while (!text.empty()) {
    const std::string_view line = trimmed(takePart(text, '\n'));
    const std::size_t equals = line.find('=');
    if (line.starts_with('[') && line.ends_with(']')) {
      group = line.substr(1, line.size() - 2);
    } else if (!line.starts_with('#') && equals != std::string_view::npos) {
      values_.emplace(std::pair(group, trimmed(line.substr(0, equals))),
                      trimmed(line.substr(equals + 1)));
    }
  }
}

std::optional<std::string> KeyFile::text(const std::string& group, const std::string& key) const {
  const auto value = values_.find({group, key});
  if (value == values_.end()) return std::nullopt;
  std::string plain;
  for (std::size_t at = 0; at < value->second.size(); ++at) {
    const bool escapes = value->second[at] == '\\' && at + 1 < value->second.size();
    plain += escapes ? unescaped(value->second[++at]) : value->second[at];
  }
  return plain;
}

std::vector<std::string> KeyFile::list(const std::string& group, const std::string& key) const {
  const std::string whole = text(group, key).value_or("");
  std::vector<std::string> parts;
  for (std::string_view rest = whole; !rest.empty();) {
    const std::string_view part = trimmed(takePart(rest, ';'));
    if (!part.empty()) parts.emplace_back(part);
  }
  return parts;
}

bool KeyFile::isTrue(const std::string& group, const std::string& key) const {
  return text(group, key) == "true";
}

KeyFile readKeyFile(const std::string& path) {
  try {
    return KeyFile(LinuxFiles().readWhole(path, kLongestFile));
  } catch (const Error&) {
    return KeyFile("");
  }
}

}  // namespace zelvane::platform
