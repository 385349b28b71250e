#include "platform/shared/ledger.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

constexpr std::string_view kHead = "Zelvane ledger 1";

struct KindName {
  Ledger::Kind kind;
  std::string_view name;
};
constexpr auto kKinds = std::to_array<KindName>(
    {{Ledger::Kind::file, "file "}, {Ledger::Kind::registryValue, "value "}});

bool isPlain(unsigned char letter) { return letter >= ' ' && letter != 0x7F && letter != '%'; }

std::string encoded(std::string_view place) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const char letter : place) {
    const auto byte = static_cast<unsigned char>(letter);
    if (isPlain(byte)) {
      text += letter;
    } else {
      text += {'%', kDigits[byte / 16U], kDigits[byte % 16U]};
    }
  }
  return text;
}

std::string decoded(std::string_view text) {
  std::string place;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::string_view code = text.substr(at).substr(0, 3);
    unsigned char byte = 0;
    const char* const end = code.data() + code.size();
    if (code.size() == 3 && code.front() == '%' &&
        std::from_chars(code.data() + 1, end, byte, 16).ptr == end) {
      place += static_cast<char>(byte);
      at += 2;
    } else {
      place += text[at];
    }
  }
  return place;
}

std::string lineOf(const Ledger::Entry& entry) {
  const auto kind = std::ranges::find(kKinds, entry.kind, &KindName::kind);
  return std::string(kind->name) + encoded(entry.place);
}

std::optional<Ledger::Entry> entryIn(std::string_view line) {
  for (const auto& [kind, name] : kKinds) {
    if (line.starts_with(name)) return Ledger::Entry{kind, decoded(line.substr(name.size()))};
  }
  return std::nullopt;
}

// The lines after the head.
std::vector<std::string> linesOf(const std::optional<std::string>& text) {
  std::vector<std::string> lines;
  if (!text) return lines;
  std::string_view rest = *text;
  while (!rest.empty()) {
    std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    lines.emplace_back(line);
  }
  if (lines.empty() || lines.front() != kHead) {
    throw Error(ErrorNumber::accessError, "The ledger is none that this version understands.");
  }
  lines.erase(lines.begin());
  return lines;
}

std::string textOf(const std::vector<std::string>& lines) {
  std::string text = std::string(kHead) + '\n';
  for (const std::string& line : lines) text += line + '\n';
  return text;
}

}  // namespace

Ledger::Ledger(Update update) : update_(std::move(update)) {}

void Ledger::note(const Entry& entry) {
  update_([&](const std::optional<std::string>& text) -> std::optional<std::string> {
    std::vector<std::string> lines = linesOf(text);
    if (std::ranges::count(lines, lineOf(entry)) > 0) return std::nullopt;
    lines.push_back(lineOf(entry));
    return textOf(lines);
  });
}

void Ledger::strike(const Entry& entry) {
  update_([&](const std::optional<std::string>& text) -> std::optional<std::string> {
    std::vector<std::string> lines = linesOf(text);
    if (std::erase(lines, lineOf(entry)) == 0) return std::nullopt;
    return textOf(lines);
  });
}

std::vector<Ledger::Entry> Ledger::entries() const {
  std::vector<Entry> entries;
  update_([&](const std::optional<std::string>& text) {
    for (const std::string& line : linesOf(text)) {
      if (auto entry = entryIn(line)) entries.push_back(*std::move(entry));
    }
    return std::nullopt;
  });
  return entries;
}

}  // namespace zelvane::platform
