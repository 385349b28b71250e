#include "platform/linux/json_text.h"

#include <cstddef>
#include <cstdint>

namespace zelvane::platform {
namespace {

constexpr std::uint32_t kBytesBegin = 0x10FE80;
constexpr std::uint32_t kBytesEnd = 0x10FF00;
constexpr std::uint32_t kBase = 0x10FE00;

struct Character {
  std::size_t length = 0;  // bytes; 0 where no valid character begins
  std::uint32_t code = 0;
};

unsigned char at(std::string_view text, std::size_t index) {
  return index < text.size() ? static_cast<unsigned char>(text[index]) : 0;
}

Character firstCharacter(std::string_view text) {
  struct Form {
    unsigned char mask, lead;
    std::size_t length;
    std::uint32_t smallest;
  };
  constexpr Form kForms[] = {
      {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};
  for (const Form& form : kForms) {
    const unsigned char lead = at(text, 0);
    if ((lead & form.mask) != form.lead || text.size() < form.length) continue;
    std::uint32_t code = lead & ~static_cast<std::uint32_t>(form.mask);
    for (std::size_t i = 1; i < form.length; ++i) {
      if ((at(text, i) & 0xC0U) != 0x80) return {};
      code = code << 6U | (at(text, i) & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    if (code < form.smallest || code > 0x10FFFF || isSurrogate) return {};
    return {form.length, code};
  }
  return {};
}

bool standsForByte(const Character& character) {
  return character.code >= kBytesBegin && character.code < kBytesEnd;
}

void appendByteCharacter(std::string& text, unsigned char byte) {
  const std::uint32_t code = kBase + byte;
  text += static_cast<char>(0xF0U | code >> 18U);
  text += static_cast<char>(0x80U | (code >> 12U & 0x3FU));
  text += static_cast<char>(0x80U | (code >> 6U & 0x3FU));
  text += static_cast<char>(0x80U | (code & 0x3FU));
}

}  // namespace

std::string toJsonText(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const Character character = firstCharacter(bytes);
    if (character.length > 0 && !standsForByte(character)) {
      text += bytes.substr(0, character.length);
      bytes.remove_prefix(character.length);
    } else {
      appendByteCharacter(text, at(bytes, 0));
      bytes.remove_prefix(1);
    }
  }
  return text;
}

std::string fromJsonText(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const Character character = firstCharacter(text);
    const std::size_t length = character.length > 0 ? character.length : 1;
    if (standsForByte(character)) {
      bytes += static_cast<char>(character.code - kBase);
    } else {
      bytes += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
  return bytes;
}

}  // namespace zelvane::platform
