#include "platform/shared/browsers/preference_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

using nlohmann::json;

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f'; }

bool isOfWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '+';
}

void appendUtf8(std::string& text, std::uint32_t unit) {
  if (unit < 0x80) {
    text += static_cast<char>(unit);
  } else if (unit < 0x800) {
    text += static_cast<char>(0xC0U | unit >> 6U);
    text += static_cast<char>(0x80U | (unit & 0x3FU));
  } else if (unit < 0x10000) {
    text += static_cast<char>(0xE0U | unit >> 12U);
    text += static_cast<char>(0x80U | (unit >> 6U & 0x3FU));
    text += static_cast<char>(0x80U | (unit & 0x3FU));
  } else {
    text += static_cast<char>(0xF0U | unit >> 18U);
    text += static_cast<char>(0x80U | (unit >> 12U & 0x3FU));
    text += static_cast<char>(0x80U | (unit >> 6U & 0x3FU));
    text += static_cast<char>(0x80U | (unit & 0x3FU));
  }
}

// Reads a text from its beginning to its end. What it does not find where it is asked for it leaves
// where it is.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  std::size_t position() const { return position_; }
  bool isAtEnd() const { return position_ == text_.size(); }

  void skipBlanksAndComments() {
    while (!isAtEnd()) {
      const std::string_view rest = text_.substr(position_);
      if (isBlank(rest.front())) {
        ++position_;
      } else if (rest.front() == '#' || rest.starts_with("//")) {
        skipBehind("\n");
      } else if (rest.starts_with("/*")) {
        skipBehind("*/");
      } else {
        return;
      }
    }
  }

  void skipBehind(std::string_view end) {
    const std::size_t found = text_.find(end, position_);
    position_ = found == std::string_view::npos ? text_.size() : found + end.size();
  }

  bool take(char wanted) {
    skipBlanksAndComments();
    if (isAtEnd() || text_[position_] != wanted) return false;
    ++position_;
    return true;
  }

  std::string_view word() {
    skipBlanksAndComments();
    const std::size_t begin = position_;
    while (!isAtEnd() && isOfWord(text_[position_])) ++position_;
    return text_.substr(begin, position_ - begin);
  }

  // In either kind of quotation marks.
  std::optional<std::string> quoted() {
    skipBlanksAndComments();
    if (isAtEnd() || (text_[position_] != '"' && text_[position_] != '\'')) return std::nullopt;
    const char mark = text_[position_++];
    std::string content;
    while (!isAtEnd()) {
      const char c = text_[position_++];
      if (c == mark) return content;
      if (c != '\\') {
        content += c;
      } else if (!appendEscaped(content)) {
        return std::nullopt;
      }
    }
    return std::nullopt;
  }

  std::optional<json> value() {
    if (auto text = quoted()) return json(std::move(*text));
    const std::string_view written = word();
    if (written == "true" || written == "false") return json(written == "true");
    const std::string_view digits = written.substr(written.starts_with('+') ? 1 : 0);
    std::int64_t number = 0;
    const auto [end, failure] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isNumber = failure == std::errc() && end == digits.data() + digits.size();
    return isNumber ? std::optional(json(number)) : std::nullopt;
  }

 private:
  bool appendEscaped(std::string& content) {
    static constexpr std::string_view kLetters = "\"'\\nr";
    static constexpr std::string_view kMeant = "\"'\\\n\r";
    if (isAtEnd()) return false;
    const char letter = text_[position_++];
    if (const std::size_t at = kLetters.find(letter); at != std::string_view::npos) {
      content += kMeant[at];
      return true;
    }
    auto unit = letter == 'x' ? hex(2) : letter == 'u' ? hex(4) : std::nullopt;
    if (!unit) return false;
    if (*unit >= 0xD800 && *unit < 0xDC00) {
      // The first half of a character; the other one has to follow.
      if (!text_.substr(position_).starts_with("\\u")) return false;
      position_ += 2;
      const auto low = hex(4);
      if (!low || *low < 0xDC00 || *low > 0xDFFF) return false;
      unit = 0x10000 + ((*unit - 0xD800) << 10U) + (*low - 0xDC00);
    }
    appendUtf8(content, *unit);
    return true;
  }

  std::optional<std::uint32_t> hex(std::size_t digits) {
    const std::string_view written = text_.substr(position_, digits);
    std::uint32_t number = 0;
    const auto [end, failure] =
        std::from_chars(written.data(), written.data() + written.size(), number, 16);
    if (failure != std::errc() || end != written.data() + digits) return std::nullopt;
    position_ += digits;
    return number;
  }

  std::string_view text_;
  std::size_t position_ = 0;
};

// JSON's own escapes are not all known to Firefox, which takes any other character as it is.
std::string writtenForm(const json& value) {
  try {
    std::string checked = value.dump();
    if (!value.is_string()) return checked;
  } catch (const json::type_error&) {
    throw Error(ErrorNumber::typeMismatch, "The text is no UTF-8.");
  }
  std::string written = "\"";
  for (const char c : value.get_ref<const std::string&>()) {
    if (c == '"' || c == '\\') written += '\\';
    written += c == '\n' ? std::string("\\n") : c == '\r' ? std::string("\\r") : std::string(1, c);
  }
  return written + "\"";
}

}  // namespace

PreferenceText::PreferenceText(std::string text) : text_(std::move(text)) { read(); }

void PreferenceText::read() {
  static constexpr auto kKinds =
      std::to_array<std::string_view>({"user_pref", "pref", "sticky_pref"});
  entries_.clear();
  Reader reader(text_);
  for (reader.skipBlanksAndComments(); !reader.isAtEnd(); reader.skipBlanksAndComments()) {
    const bool begins = std::ranges::count(kKinds, reader.word()) > 0 && reader.take('(');
    auto name = begins ? reader.quoted() : std::nullopt;
    const bool goesOn = name && reader.take(',');
    reader.skipBlanksAndComments();
    const std::size_t begin = reader.position();
    auto value = goesOn ? reader.value() : std::nullopt;
    const std::size_t end = reader.position();
    if (value && reader.take(')') && reader.take(';')) {
      entries_.push_back({std::move(*name), std::move(*value), begin, end});
    } else {
      isDamaged_ = true;
      reader.skipBehind(";");
    }
  }
}

std::optional<json> PreferenceText::find(std::string_view name) const {
  const auto entry = std::find_if(entries_.rbegin(), entries_.rend(),
                                  [&](const Entry& each) { return each.name == name; });
  return entry == entries_.rend() ? std::nullopt : std::optional(entry->value);
}

void PreferenceText::set(std::string_view name, const json& value) {
  const std::string written = writtenForm(value);
  bool isThere = false;
  // From the end, so that the places before it stay where they are.
  for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
    if (entry->name != name) continue;
    text_.replace(entry->begin, entry->end - entry->begin, written);
    isThere = true;
  }
  if (!isThere) {
    const std::string lineEnd = text_.find("\r\n") == std::string::npos ? "\n" : "\r\n";
    if (!text_.empty() && !text_.ends_with('\n')) text_ += lineEnd;
    text_.append("user_pref(\"").append(name).append("\", ").append(written).append(");" + lineEnd);
  }
  read();
}

}  // namespace zelvane::platform
