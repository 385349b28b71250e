#include "tests/architecture/control_names.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <string>
#include <string_view>

#include "tests/architecture/source_text.h"

namespace zelvane::architecture {

namespace {

bool isControlName(std::string_view literal) {
  static constexpr auto kKinds = std::to_array<std::string_view>(
      {"chk", "cmb", "cmd", "dtp", "fra", "lbl", "mnu", "opt", "pic", "tab", "tmr", "txt"});
  const auto isUpper = [](unsigned char letter) { return std::isupper(letter) != 0; };
  const auto isLetterOrDigit = [](unsigned char letter) { return std::isalnum(letter) != 0; };
  return literal.size() > 3 && std::ranges::find(kKinds, literal.substr(0, 3)) != kKinds.end() &&
         isUpper(static_cast<unsigned char>(literal[3])) &&
         std::ranges::all_of(literal, isLetterOrDigit);
}

}  // namespace

std::vector<Violation> controlNamesSpeltAgain(const std::vector<SourceFile>& tree) {
  std::map<std::string, std::string, std::less<>> firstPlaces;
  std::vector<Violation> violations;
  for (const SourceFile& file : tree) {
    if (!isProduct(file.path)) {
      continue;
    }
    const std::string code = withoutComments(file.text);
    int number = 0;
    for (std::string_view line : linesOf(code)) {
      ++number;
      for (std::size_t open = line.find('"'); open != std::string_view::npos;) {
        const std::size_t close = std::min(line.find('"', open + 1), line.size());
        const std::string_view literal = line.substr(open + 1, close - open - 1);
        if (isControlName(literal)) {
          const std::string place = file.path + ":" + std::to_string(number);
          const auto [first, isFirst] = firstPlaces.try_emplace(std::string(literal), place);
          if (!isFirst) {
            violations.push_back(
                {file.path, number,
                 "spells " + std::string(literal) + " again, after " + first->second});
          }
        }
        open = close == line.size() ? std::string_view::npos : line.find('"', close + 1);
      }
    }
  }
  return violations;
}

}  // namespace zelvane::architecture
