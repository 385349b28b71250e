#include "tests/attack/kills/before_or_after.h"

#include <optional>
#include <set>

namespace zelvane::test {
namespace {

std::optional<std::string> valueIn(const StoredValues& values, const std::string& name) {
  const auto found = values.find(name);
  if (found == values.end()) return std::nullopt;
  return found->second;
}

}  // namespace

std::vector<std::string> neitherBeforeNorAfter(const StoredValues& now, const StoredValues& before,
                                               const StoredValues& after) {
  std::set<std::string> names;
  for (const StoredValues* values : {&now, &before, &after}) {
    for (const auto& [name, value] : *values) names.insert(name);
  }
  std::erase_if(names, [&](const std::string& name) {
    const auto value = valueIn(now, name);
    return value == valueIn(before, name) || value == valueIn(after, name);
  });
  return {names.begin(), names.end()};
}

}  // namespace zelvane::test
