#include "platform/linux/route_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace zelvane::platform {
namespace {

constexpr std::uint32_t kUp = 0x1;
constexpr std::uint32_t kRefuses = 0x200;

enum Field {
  interfaceName,
  destination,
  gateway,
  flags,
  references,
  use,
  metric,
  mask,
  fieldCount
};

using Fields = std::array<std::string_view, fieldCount>;

// Nothing where there are fewer.
std::optional<Fields> fieldsOf(std::string_view line) {
  constexpr std::string_view kBlanks = " \t";
  Fields fields;
  for (std::string_view& field : fields) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    field = line.substr(0, line.find_first_of(kBlanks));
    if (field.empty()) return std::nullopt;
    line.remove_prefix(field.size());
  }
  return fields;
}

std::optional<std::uint32_t> number(std::string_view digits, int base) {
  std::uint32_t value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [last, failure] = std::from_chars(digits.data(), end, value, base);
  if (failure != std::errc() || last != end) return std::nullopt;
  return value;
}

bool leadsEverywhere(const Fields& route) {
  const std::uint32_t state = number(route[flags], 16).value_or(0);
  return number(route[destination], 16) == 0U && number(route[mask], 16) == 0U &&
         (state & (kUp | kRefuses)) == kUp;
}

}  // namespace

std::optional<std::string> defaultInterface(std::string_view table) {
  std::optional<std::string> best;
  std::uint32_t bestMetric = 0;
  while (!table.empty()) {
    const auto route = fieldsOf(table.substr(0, table.find('\n')));
    table.remove_prefix(std::min(table.find('\n'), table.size() - 1) + 1);
    if (!route || !leadsEverywhere(*route)) continue;
    const auto routeMetric = number((*route)[metric], 10);
    if (!routeMetric || (best && *routeMetric >= bestMetric)) continue;
    best = (*route)[interfaceName];
    bestMetric = *routeMetric;
  }
  return best;
}

}  // namespace zelvane::platform
