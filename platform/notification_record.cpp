#include "platform/notification_record.h"

#include <algorithm>

namespace zelvane::platform {

namespace {

// Of a letter in UTF-8 every byte but the first is one of these.
bool continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// By the first byte of a letter.
std::ptrdiff_t lengthOfLetter(char first) {
  const auto byte = static_cast<unsigned char>(first);
  return byte < 0xC0U ? 1 : byte < 0xE0U ? 2 : byte < 0xF0U ? 3 : 4;
}

}  // namespace

std::string tipText(const NotificationRecord& record) {
  const auto end = std::ranges::find(record.tip, '\0');
  auto last = end;
  while (last != record.tip.begin() && continues(*(last - 1))) {
    --last;
  }
  if (last == record.tip.begin()) {
    return {};
  }
  --last;
  return {record.tip.begin(), end - last < lengthOfLetter(*last) ? last : end};
}

}  // namespace zelvane::platform
