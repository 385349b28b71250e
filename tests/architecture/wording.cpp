#include "tests/architecture/wording.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>

#include "tests/architecture/source_text.h"

namespace zelvane::architecture {

namespace {

// Each is written in two pieces, as this file is searched as well.
constexpr auto kWords =
    std::to_array<std::string_view>({"TO"
                                     "DO",
                                     "FIX"
                                     "ME",
                                     "XX"
                                     "X",
                                     "HA"
                                     "CK"});
constexpr auto kAnyCase =
    std::to_array<std::string_view>({"sp"
                                     "ec",
                                     "the speci"
                                     "fication"});
constexpr auto kBeforeANumber =
    std::to_array<std::string_view>({"Pa"
                                     "rt",
                                     "Pa"
                                     "rts",
                                     "rul"
                                     "ing",
                                     "rul"
                                     "ings",
                                     "iss"
                                     "ue"});
constexpr auto kPlaces =
    std::to_array<std::string_view>({"/wo"
                                     "rk/",
                                     "/tm"
                                     "p/z/"});

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](unsigned char letter) {
    return static_cast<char>(std::tolower(letter));
  });
  return lower;
}

bool contains(std::string_view text, std::string_view piece) {
  return text.find(piece) != std::string_view::npos;
}

bool hasWord(std::string_view text, std::string_view word) {
  return findWord(text, word) != std::string_view::npos;
}

// As in "chapter 3" or "chapter #3".
bool hasWordBeforeANumber(std::string_view text, std::string_view word) {
  for (std::size_t at = findWord(text, word); at != std::string_view::npos;
       at = findWord(text, word, at + 1)) {
    const std::size_t next = text.find_first_not_of(" #", at + word.size());
    if (next != std::string_view::npos && next > at + word.size() &&
        std::isdigit(static_cast<unsigned char>(text[next])) != 0) {
      return true;
    }
  }
  return false;
}

std::string_view forbiddenIn(std::string_view line) {
  const std::string lower = lowerCase(line);
  for (std::string_view word : kWords) {
    if (hasWord(line, word)) {
      return word;
    }
  }
  for (std::string_view word : kAnyCase) {
    if (hasWord(lower, word)) {
      return word;
    }
  }
  for (std::string_view word : kBeforeANumber) {
    if (hasWordBeforeANumber(line, word)) {
      return word;
    }
  }
  for (std::string_view place : kPlaces) {
    if (contains(line, place)) {
      return place;
    }
  }
  return {};
}

}  // namespace

std::vector<Violation> forbiddenWords(const SourceFile& file) {
  std::vector<Violation> violations;
  int number = 0;
  for (std::string_view line : linesOf(file.text)) {
    ++number;
    if (const std::string_view word = forbiddenIn(line); !word.empty()) {
      violations.push_back({file.path, number, "says \"" + std::string(word) + "\""});
    }
  }
  return violations;
}

}  // namespace zelvane::architecture
