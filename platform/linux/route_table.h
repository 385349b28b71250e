// The kernel's table of IPv4 routes: /proc/net/route.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelvane::platform {

// The name of the interface that leads everywhere else, by the text of the table; of several the
// one with the lowest metric, and among equals the first. A line, after one of headings:
//
//     Iface  Destination  Gateway   Flags  RefCnt  Use  Metric  Mask      MTU  Window  IRTT
//     eth0   00000000     0102A8C0  0003   0       0    100     00000000  0    0       0
//
// Destination and mask are zero for the route that leads everywhere. Of the flags 1 is "up" and
// 0x200 "refuses".
std::optional<std::string> defaultInterface(std::string_view table);

}  // namespace zelvane::platform
