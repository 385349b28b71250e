#include "platform/shared/ini_text.h"

#include <algorithm>

#include "platform/shared/ascii_case.h"

namespace zelvane::platform {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view withoutLineEnd(std::string_view line) {
  return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

std::string_view content(std::string_view line) {
  if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
  return trimmed(withoutLineEnd(line));
}

std::optional<std::string_view> sectionName(std::string_view line) {
  const std::string_view text = content(line);
  const auto close = text.find(']');
  if (!text.starts_with('[') || close == text.npos) return std::nullopt;
  return trimmed(text.substr(1, close - 1));
}

bool isComment(std::string_view line) { return content(line).starts_with(';'); }

std::optional<std::string_view> keyName(std::string_view line) {
  const std::string_view text = content(line);
  const auto equals = text.find('=');
  if (equals == text.npos || isComment(line)) return std::nullopt;
  return trimmed(text.substr(0, equals));
}

std::string_view valueText(std::string_view line) {
  const std::string_view text = content(line);
  const std::string_view value = trimmed(text.substr(text.find('=') + 1));
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

bool canBeReadAgain(std::string_view section, std::string_view key, std::string_view text) {
  const auto hasAny = [](std::string_view where, std::string_view what) {
    return where.find_first_of(what) != where.npos;
  };
  constexpr std::string_view kBreaks("\r\n\0", 3);
  return !hasAny(section, kBreaks) && !hasAny(section, "]") && !hasAny(key, kBreaks) &&
         !hasAny(key, "=") && !hasAny(text, kBreaks) && !trimmed(key).empty() &&
         !sectionName(key) && !isComment(key);
}

}  // namespace

IniText::IniText(std::string_view text) {
  while (!text.empty()) {
    const auto length = std::min(text.find('\n'), text.size() - 1) + 1;
    lines_.emplace_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  const bool plainEnd =
      !lines_.empty() && lines_.front().ends_with('\n') && !lines_.front().ends_with("\r\n");
  if (plainEnd) lineEnd_ = "\n";
}

IniText::Place IniText::place(std::string_view section, std::string_view key) const {
  Place place;
  bool inside = false;
  bool first = false;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (const auto name = sectionName(lines_[i])) {
      inside = sameName(*name, trimmed(section));
      first = inside && !place.end;
      if (first) place.end = i + 1;
      continue;
    }
    if (!inside) continue;
    const auto name = keyName(lines_[i]);
    if (name && sameName(*name, trimmed(key))) {
      place.line = i;
      return place;
    }
    // A new key joins the last line that says something, before the blank lines that part sections.
    if (first && !content(lines_[i]).empty()) place.end = i + 1;
  }
  return place;
}

std::optional<std::string> IniText::find(std::string_view section, std::string_view key) const {
  const auto line = place(section, key).line;
  if (!line) return std::nullopt;
  return std::string(valueText(lines_[*line]));
}

bool IniText::set(std::string_view section, std::string_view key, std::string_view text) {
  if (!canBeReadAgain(section, key, text)) return false;
  const auto [line, end] = place(section, key);
  const std::string entry = std::string(trimmed(key)) + "=" + std::string(text);
  const auto withEnd = [this](std::string_view words) {
    return std::string(words) + std::string(lineEnd_);
  };
  if (line) {
    std::string& old = lines_[*line];
    const auto name = old.substr(0, old.find('=') + 1);
    old = name + std::string(text) + old.substr(withoutLineEnd(old).size());
    return true;
  }
  if (!lines_.empty() && !lines_.back().ends_with('\n')) lines_.back() += lineEnd_;
  if (!end) {
    lines_.push_back(withEnd("[" + std::string(trimmed(section)) + "]"));
    lines_.push_back(withEnd(entry));
  } else {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(*end), withEnd(entry));
  }
  return true;
}

std::string IniText::text() const {
  std::string text;
  for (const std::string& line : lines_) text += line;
  return text;
}

std::string cutText(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) return std::string(text);
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  std::size_t length = limit;
  while (length > 0 && continues(text[length])) --length;
  return std::string(text.substr(0, length));
}

}  // namespace zelvane::platform
