#include "platform/windows/stored_name.h"

#include <cstdint>

namespace zelvane::platform {
namespace {

constexpr std::size_t kLongestPart = 240;  // leaves room for the sign at its end

std::wstring signFor(char c) {
  constexpr std::wstring_view kDigits = L"0123456789abcdef";
  const auto byte = static_cast<std::uint8_t>(c);
  if (c >= 'A' && c <= 'Z') return {L'^', static_cast<wchar_t>(byte)};
  if (byte >= 0x20 && byte < 0x7F && c != '%' && c != '\\' && c != '^') {
    return {static_cast<wchar_t>(byte)};
  }
  return {L'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
}

}  // namespace

std::vector<std::wstring> storedNames(std::string_view text) {
  if (text.empty()) return {L"^"};
  std::vector<std::wstring> names(1);
  for (const char c : text) {
    const std::wstring sign = signFor(c);
    if (names.back().size() + sign.size() > kLongestPart) {
      names.back() += L'^';
      names.emplace_back();
    }
    names.back() += sign;
  }
  return names;
}

}  // namespace zelvane::platform
