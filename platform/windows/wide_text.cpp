#include "platform/windows/wide_text.h"

#include <cstdint>

#include "platform/error.h"

namespace zelvane::platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHighHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::uint8_t byteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<std::uint8_t>(text[at]) : 0;
}

// How many bytes a character that begins like this has; 0 where none begins so.
std::size_t lengthFrom(std::uint8_t first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// The character that begins at `at`, which moves behind it.
char32_t nextCharacter(std::string_view text, std::size_t& at) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const std::uint8_t first = byteAt(text, at++);
  const std::size_t length = lengthFrom(first);
  if (length == 1) return first;
  if (length == 0) return kReplacement;
  char32_t character = first & (0x7FU >> length);
  for (std::size_t index = 0; index + 1 < length; ++index) {
    const std::uint8_t byte = byteAt(text, at + index);
    if ((byte & 0xC0U) != 0x80U) return kReplacement;
    character = character << 6U | (byte & 0x3FU);
  }
  if (character < kLeast[length] || character > 0x10FFFF) return kReplacement;
  at += length - 1;
  return character;
}

void appendPlain(std::string& text, char32_t character) {
  const auto more = [&](unsigned shift) {
    text += static_cast<char>(0x80U | (character >> shift & 0x3FU));
  };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0U | character >> 6U);
    more(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0U | character >> 12U);
    more(6);
    more(0);
  } else {
    text += static_cast<char>(0xF0U | character >> 18U);
    more(12);
    more(6);
    more(0);
  }
}

}  // namespace

std::wstring wideText(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = nextCharacter(text, at);
    if (character < 0x10000) {
      wide += static_cast<wchar_t>(character);
    } else {
      wide += static_cast<wchar_t>(0xD7C0U + (character >> 10U));
      wide += static_cast<wchar_t>(0xDC00U + (character & 0x3FFU));
    }
  }
  return wide;
}

std::string plainText(std::wstring_view wide) {
  std::string text;
  text.reserve(wide.size());
  for (std::size_t at = 0; at < wide.size(); ++at) {
    char32_t character = wide[at];
    if (isHighHalf(character) && at + 1 < wide.size() && isLowHalf(wide[at + 1])) {
      character = 0x10000 + ((character - 0xD800U) << 10U) + (wide[++at] - 0xDC00U);
    }
    appendPlain(text, character);
  }
  return text;
}

std::wstring wideName(std::string_view name) {
  if (name.find('\0') != std::string_view::npos) throw Error(ErrorNumber::fileNotFound);
  return wideText(name);
}

}  // namespace zelvane::platform
