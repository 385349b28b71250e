// The record that describes an icon in the notification area.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zelvane::platform {

// Its layout is fixed, whatever the width of the system's own handles is:
//
//     0      4        8            12      16         20     24                     88
//     | size | window | identifier | flags | callback | icon | tip, 64 bytes . . . . |
//
// The tip is UTF-8, with a zero after it if there is room for one.
struct NotificationRecord {
  static constexpr std::size_t kTipSize = 64;  // bytes

  std::uint32_t size = 0;             // of the record: 88 bytes
  std::uint32_t window = 0;           // handle of the window whose icon it is
  std::uint32_t identifier = 0;       // of the icon, among those of its window
  std::uint32_t flags = 0;            // which of the three below hold something: 1, 2 and 4
  std::uint32_t callbackMessage = 0;  // by which the window is told of the mouse
  std::uint32_t icon = 0;             // handle of the picture
  std::array<char, kTipSize> tip{};

  friend bool operator==(const NotificationRecord&, const NotificationRecord&) = default;
};

static_assert(sizeof(NotificationRecord) == 88);
static_assert(offsetof(NotificationRecord, window) == 4);
static_assert(offsetof(NotificationRecord, identifier) == 8);
static_assert(offsetof(NotificationRecord, flags) == 12);
static_assert(offsetof(NotificationRecord, callbackMessage) == 16);
static_assert(offsetof(NotificationRecord, icon) == 20);
static_assert(offsetof(NotificationRecord, tip) == 24);

// The tip as it can be shown: up to its zero, and without a letter that was cut in the middle.
std::string tipText(const NotificationRecord& record);

// Whether both are about the same icon.
inline bool areOfOneIcon(const NotificationRecord& one, const NotificationRecord& other) {
  return one.window == other.window && one.identifier == other.identifier;
}

}  // namespace zelvane::platform
